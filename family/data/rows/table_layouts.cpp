#include "family/data/rows/table_layouts.hpp"

#include "family/data/engine/migration.hpp"

#include <algorithm>
#include <iterator>

namespace kova::family {

namespace {

constexpr StoredTable Tables[] = {
    {"papel", "codigo", 9},
    {"papel_direito", "codigo", 9},
    {"empresa", "codigo"},
    {"usuario", "codigo"},
    {"tipo_de_servico", "numero"},
    {"servico", "codigo"},
    {"funcionario", "codigo"},
    {"especie", "codigo"},
    {"raca", "codigo"},
    {"feriado", "codigo"},
    {"cliente", "codigo"},
    {"canal_de_comunicacao", "codigo"},
    {"animal", "codigo"},
    {"pacote", "codigo"},
    {"agendamento", "numero"},
    {"pre_venda", "codigo"},
    {"auditoria", "codigo"},
    {"gravacao", "identificador", 4, false},
    {"expediente", "codigo", 8},
    {"horario_do_funcionario", "codigo", 8},
    {"ausencia", "codigo", 8},
    {"tentativa_de_entrada", "identificador", 9, false},
    {"elo_da_auditoria", "ordem", 10, false},
    {"ajuste", "codigo", 12},
    {"lista_de_espera", "codigo", 14},
    {"espera_servico", "codigo", 14},
    {"espera_funcionario", "codigo", 14},
};

constexpr Reference AllReferences[] = {
    {"papel_direito", "codigo_do_papel", "papel", "codigo"},
    {"usuario", "codigo_do_papel", "papel", "codigo"},
    {"servico", "numero_do_tipo_de_servico", "tipo_de_servico", "numero"},
    {"raca", "codigo_da_especie", "especie", "codigo"},
    {"canal_de_comunicacao", "codigo_do_cliente", "cliente", "codigo"},
    {"animal", "codigo_do_cliente", "cliente", "codigo"},
    {"animal", "codigo_da_raca", "raca", "codigo"},
    {"pacote", "codigo_do_servico", "servico", "codigo"},
    {"agendamento", "codigo_do_cliente", "cliente", "codigo"},
    {"agendamento", "codigo_do_animal", "animal", "codigo"},
    {"agendamento", "numero_do_tipo_de_servico", "tipo_de_servico", "numero"},
    {"agendamento", "codigo_do_servico", "servico", "codigo"},
    {"agendamento", "codigo_do_funcionario", "funcionario", "codigo"},
    {"agendamento", "codigo_do_pacote", "pacote", "codigo"},
    {"horario_do_funcionario", "codigo_do_funcionario", "funcionario", "codigo"},
    {"ausencia", "codigo_do_funcionario", "funcionario", "codigo"},
    {"lista_de_espera", "codigo_do_cliente", "cliente", "codigo"},
    {"lista_de_espera", "codigo_do_animal", "animal", "codigo"},
    {"espera_servico", "codigo_da_espera", "lista_de_espera", "codigo"},
    {"espera_servico", "codigo_do_servico", "servico", "codigo"},
    {"espera_funcionario", "codigo_da_espera", "lista_de_espera", "codigo"},
    {"espera_funcionario", "codigo_do_funcionario", "funcionario", "codigo"},
};

} // namespace

std::span<const StoredTable> StoredTables() { return Tables; }

std::span<const Reference> References() { return AllReferences; }

std::vector<StoredTable> StoredTables(Database& database)
{
    const int version = StoredVersion(database.Session());
    std::vector<StoredTable> tables;
    std::copy_if(std::begin(Tables), std::end(Tables), std::back_inserter(tables),
                 [&](const StoredTable& table) { return table.since <= version; });
    return tables;
}

std::vector<Reference> References(Database& database)
{
    const std::vector<StoredTable> tables = StoredTables(database);
    std::vector<Reference> references;
    std::copy_if(std::begin(AllReferences), std::end(AllReferences), std::back_inserter(references),
                 [&](const Reference& reference) {
                     return Has(tables, reference.table) && Has(tables, reference.target);
                 });
    return references;
}

bool Has(const std::vector<StoredTable>& tables, std::string_view name)
{
    return std::any_of(tables.begin(), tables.end(),
                       [&](const StoredTable& table) { return table.name == name; });
}

// Asked of the database instead of kept in a list: a column that a later version of the schema brings
// cannot be forgotten then.
std::vector<Column> ColumnsOf(Database& database, const char* table)
{
    soci::row row;
    soci::statement statement =
        (database.Session().prepare << std::string("select * from ") + table + " where 1 = 0",
         soci::into(row));
    statement.execute();
    std::vector<Column> columns;
    for (std::size_t at = 0; at < row.size(); ++at) {
        const soci::column_properties& properties = row.get_properties(at);
        columns.push_back({properties.get_name(), properties.get_data_type() == soci::dt_string});
    }
    return columns;
}

std::vector<TableCount> CountRows(Database& database)
{
    std::vector<TableCount> counts;
    for (const StoredTable& table : StoredTables(database)) {
        TableCount& count = counts.emplace_back(TableCount{table.name});
        database.Session() << std::string("select count(*) from ") + table.name, soci::into(count.rows);
    }
    return counts;
}

} // namespace kova::family
