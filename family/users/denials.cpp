#include "family/users/denials.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/engine/safe_write.hpp"

#include <cstdlib>

namespace kova::family {

void AuditDenial(Database& database, const Author& author, const RightDenied& denied)
{
    const AuditValues what = AuditValues().Add("direito", std::string(InfoOf(denied.DeniedRight()).name));
    try {
        WriteSafely(database, [&] {
            AuditAccess(database, author, audit_operation::Denial,
                        std::strtoll(author.code.c_str(), nullptr, 10), what);
            return true;
        });
    } catch (const DatabaseFailure&) {
        return;
    }
}

} // namespace kova::family
