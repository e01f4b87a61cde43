#pragma once

#include "tests/conformance/business/engine.hpp"

namespace kova::conformance {

/// The components that scenario scripts stand in for the family.
std::unique_ptr<Engine> MakeScriptedEngine();

} // namespace kova::conformance
