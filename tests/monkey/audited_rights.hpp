#pragma once

#include <string>

namespace kova::monkey {

/// The first line of the shop's audit whose user had no right then to what it tells, with the right; "" where
/// everybody had what it took. Who may do what follows from the lines themselves, on top of the roles that
/// every shop begins with.
std::string WriteWithoutRight(const std::string& database);

} // namespace kova::monkey
