#pragma once

#include "tools/scenario/language/script.hpp"

namespace kova::scenario {

/// Reads the script in a file, whose path is UTF-8. `use NAME` takes NAME.setup from the script's folder or
/// from the nearest folder above it that has one. Throws ScriptError, and std::invalid_argument where the
/// file cannot be read.
Script ReadScript(const std::string& file);

} // namespace kova::scenario
