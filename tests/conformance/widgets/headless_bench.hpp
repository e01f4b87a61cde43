#pragma once

#include "tests/conformance/widgets/bench.hpp"

namespace kova::conformance {

/// The toolkit without a screen: acts go to the models by way of the headless user.
std::unique_ptr<Bench> MakeHeadlessBench();

} // namespace kova::conformance
