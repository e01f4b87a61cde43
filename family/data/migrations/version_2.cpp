#include "family/data/migrations/schemas.hpp"

namespace kova::family {

std::vector<std::string> SchemaOfVersion2(const Dialect&)
{
    return {
        // Whoever books asks for an employee's appointments that are not over yet, however long ago they
        // began. No selection went by their beginning.
        "drop index agendamento_por_funcionario",
        "create index agendamento_por_termino on agendamento"
        " (codigo_do_funcionario, data_final, data_inicial)",
    };
}

} // namespace kova::family
