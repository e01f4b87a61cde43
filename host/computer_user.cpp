#include "host/computer_user.hpp"

#include <pwd.h>
#include <unistd.h>

namespace kova::host {

std::string NameOfAccount(const passwd* account)
{
    if (account == nullptr || account->pw_name == nullptr || *account->pw_name == '\0')
        return "Recepção";
    // The full name stands before the first comma; many accounts have none.
    const std::string full = account->pw_gecos == nullptr ? "" : account->pw_gecos;
    const std::string name = full.substr(0, full.find(','));
    return name.empty() ? account->pw_name : name;
}

std::string NameOfThisUser() { return NameOfAccount(getpwuid(getuid())); }

} // namespace kova::host
