#pragma once

#include "tests/conformance/widgets/bench.hpp"

namespace kova::conformance {

/// The toolkit on Qt, offscreen: acts are keys and mouse events that come in at the windows.
std::unique_ptr<Bench> MakeQtBench();

} // namespace kova::conformance
