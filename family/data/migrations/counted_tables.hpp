#pragma once

#include "family/data/engine/dialect.hpp"

#include <span>

namespace kova::family {

/// A table whose changes are counted, and the columns of it whose writing is one.
struct CountedTable {
    const char *name, *columns;
};

/// The statements after which they are counted, each under its name and from 0 on.
std::vector<std::string> CountFromNowOn(std::span<const CountedTable> tables, const Dialect& dialect);

} // namespace kova::family
