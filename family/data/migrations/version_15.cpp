#include "family/data/migrations/schemas.hpp"

#include "family/data/engine/server_client.hpp"

namespace kova::family {

// A transaction that leaves lines in the audit links them as it is committed, so that whoever is told of a
// link finds the line. The desks of a file look at its own counter.
std::vector<std::string> SchemaOfVersion15(const Dialect& dialect)
{
    if (!dialect.IsServer())
        return {};
    return {
        std::string("create function avisa_novidades() returns trigger language plpgsql as $$ begin"
                    " perform pg_notify('")
            + NoticeChannel + "', ''); return null; end $$",
        "revoke all on function avisa_novidades() from public",
        "create trigger auditoria_avisada after insert on elo_da_auditoria for each statement"
        " execute function avisa_novidades()",
    };
}

} // namespace kova::family
