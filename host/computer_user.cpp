#include "host/computer_user.hpp"

#include <pwd.h>
#include <unistd.h>

namespace kova::host {

std::string NameOfThisUser()
{
    const passwd* entry = getpwuid(getuid());
    if (entry == nullptr || entry->pw_name == nullptr || *entry->pw_name == '\0')
        return "Recepção";
    // The full name stands before the first comma; many accounts have none.
    const std::string full = entry->pw_gecos == nullptr ? "" : entry->pw_gecos;
    const std::string name = full.substr(0, full.find(','));
    return name.empty() ? entry->pw_name : name;
}

} // namespace kova::host
