#pragma once

#include <exception>
#include <string>
#include <system_error>

namespace kova::family {

/// What a user is told of a failure of any kind. What this system has thrown itself is told as it stands;
/// what a library or the file system reports, in English or in whatever the desktop speaks, becomes
/// Portuguese words with what to do, and the original is its detail (failure_detail.hpp).
std::string WordsFor(const std::exception& failure);

/// What to do about what the file system answers.
std::string AdviceFor(const std::error_code& cause);

} // namespace kova::family
