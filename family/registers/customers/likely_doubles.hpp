#pragma once

#include "family/registers/description/register.hpp"

namespace kova::family::registers {

/// Customers with the same document, with the same phone number by its digits, or with the same name and an
/// animal of the same name. See Register::LikelyDoubles.
std::vector<LikelyDouble> DoublesOfCustomer(Database& database, Key key, const Texts& before,
                                            const Texts& typed);

/// Animals of the same name, of the same customer or of one of the same name.
std::vector<LikelyDouble> DoublesOfAnimal(Database& database, Key key, const Texts& before,
                                          const Texts& typed);

} // namespace kova::family::registers
