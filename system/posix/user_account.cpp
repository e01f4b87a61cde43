#include "system/user_account.hpp"

#include "system/posix/passwd_entry.hpp"

#include <pwd.h>
#include <unistd.h>

namespace kova::system {

namespace {

std::string TextOrNothing(const char* text) { return text == nullptr ? "" : text; }

} // namespace

UserAccount AccountOf(const passwd* entry)
{
    if (entry == nullptr)
        return {};
    // The full name stands before the first comma; office and telephone behind it.
    const std::string details = TextOrNothing(entry->pw_gecos);
    return {TextOrNothing(entry->pw_name), details.substr(0, details.find(','))};
}

UserAccount ThisUser() { return AccountOf(::getpwuid(::getuid())); }

} // namespace kova::system
