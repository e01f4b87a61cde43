#pragma once

#include <string>

namespace kova::database_scenarios {

/// Makes the shop on which the scripts of this folder run, in a new file or an empty database of a server: a
/// handful of rows that the scripts count on, the same at every call. What stands where is told in
/// known_shop.cpp.
void MakeKnownShop(const std::string& dataSource);

} // namespace kova::database_scenarios
