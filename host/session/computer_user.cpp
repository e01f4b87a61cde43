#include "host/session/computer_user.hpp"

namespace kova::host {

std::string NameOfAccount(const system::UserAccount& account)
{
    if (account.name.empty())
        return "Recepção";
    return account.fullName.empty() ? account.name : account.fullName;
}

std::string NameOfThisUser() { return NameOfAccount(system::ThisUser()); }

} // namespace kova::host
