#pragma once

#include "family/data/engine/database.hpp"

namespace kova::family {

/// Opens a database of the newest schema without leave to write. Fails with a DatabaseFailure where it cannot
/// be opened, or is of an older schema, which a reader must not change; the text tells how to bring it up to
/// date.
std::unique_ptr<Database> OpenNewestForReading(const std::string& path);

} // namespace kova::family
