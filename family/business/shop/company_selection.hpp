#pragma once

#include "family/data/engine/database.hpp"

#include <string>
#include <vector>

namespace kova::family {

/// Trade names of the registered companies, first the one that was registered first.
std::vector<std::string> SelectTradeNames(Database& database);

} // namespace kova::family
