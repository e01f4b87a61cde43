#pragma once

#include "agenda/contracts/failure.hpp"

#include <stdexcept>
#include <string>

namespace kova::family {

/// The number under which every failure of the data store reaches the error screen.
inline constexpr std::int32_t DatabaseFailureNumber = -2147467259;

/// A failure of the data store; the text is Portuguese, names the path, and says what to do.
Failure DatabaseFailure(std::string text);

/// The same of what the database library reports, told from its message.
Failure TranslatedFailure(const std::string& path, const std::runtime_error& cause);

} // namespace kova::family
