#pragma once

#include "family/data/database.hpp"

namespace kova::data {

/// Opens a database without leave to write. Fails where it cannot be opened or is of an older schema, which
/// a reader must not change.
std::unique_ptr<family::Database> OpenCurrentForReading(const std::string& path);

} // namespace kova::data
