#pragma once

#include "family/users/passwords.hpp"
#include "tools/agenda-data/command.hpp"

#include <memory>

namespace kova::data {

/// A new password: typed twice where somebody sits at a console, which shows nothing of it, and else the
/// first line of what is read. Never a word of the command line, which others can see. Null where it will not
/// do, which is told in `error` then.
std::unique_ptr<family::Secret> NewPassword(Surroundings& surroundings);

} // namespace kova::data
