#include "host/session/computer_user.hpp"

#include "family/data/audit/audit_events.hpp"

namespace kova::host {

std::string NameOfAccount(const system::UserAccount& account) { return family::NameOfAccount(account); }

std::string NameOfThisUser() { return NameOfAccount(system::ThisUser()); }

} // namespace kova::host
