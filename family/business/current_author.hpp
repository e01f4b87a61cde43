#pragma once

#include "agenda/contracts/platform.hpp"
#include "family/data/audit/author.hpp"

namespace kova::family {

/// The session's user, by its members Codigo and Nome as they can be kept (CleanText), at the clock's moment
/// and this computer. Fails with 91 and "Usuário não informado." where there is no user, or none with a name.
Author CurrentAuthor(const ObjectRef& user, const Clock& clock);

} // namespace kova::family
