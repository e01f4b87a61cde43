#pragma once

#include "tests/conformance/business/engine.hpp"

namespace kova::conformance {

/// The family's component library, found and loaded as a host does it, on an SQLite file in a temporary
/// folder.
std::unique_ptr<Engine> MakeSqliteEngine();

/// The same on a server of the test program's own.
std::unique_ptr<Engine> MakePostgresqlEngine();

} // namespace kova::conformance
