#include "family/data/migrations/schemas.hpp"

namespace kova::family {

std::vector<std::string> SchemaOfVersion4(const Dialect& dialect)
{
    return {
        // Raised by one in every write of the row: who has read it can tell whether it changed since.
        "alter table agendamento add column versao " + dialect.bigInteger + " not null default 1",

        // Name of the computer that the line was written at.
        "alter table auditoria add column posto text not null default ''",

        // A write whose answer may get lost leaves its mark here, to be found when it is asked about.
        "create table gravacao (identificador text not null primary key, momento text not null)",
    };
}

} // namespace kova::family
