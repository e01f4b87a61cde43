#pragma once

#include "family/data/engine/database.hpp"

#include <string>
#include <vector>

namespace kova::family {

/// Who of a server's may change what is stored of the audit although he does not own it: the roles that can
/// sign in, or "PUBLIC" where everybody may. A desk's role is told also where it may because it is an
/// administrator's or may act as the owner. Nobody where it is a file. Fails with soci::soci_error.
std::vector<std::string> WhoMayRewriteAudit(Database& database);

/// Whether a server has a role that adds lines and can do no more with the audit, so that its desks need not
/// be its owner. Always, where it is a file. Fails with soci::soci_error.
bool HasRoleOfDesks(Database& database);

} // namespace kova::family
