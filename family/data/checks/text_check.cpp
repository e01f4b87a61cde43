#include "family/data/checks/rule_check.hpp"
#include "family/data/checks/walk_pages.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/engine/migration.hpp"
#include "family/data/engine/nullable.hpp"
#include "family/data/rows/table_layouts.hpp"
#include "family/data/sources/data_source.hpp"

#include <iterator>
#include <limits>

namespace kova::family {

namespace {

struct DatedColumn {
    const char* table;
    const char* key;
    const char* column;
    bool (*isRight)(std::string_view text);
};
constexpr DatedColumn DatedColumns[] = {
    {"agendamento", "numero", "data_inicial", IsIsoDate},
    {"agendamento", "numero", "hora_inicial", IsIsoTime},
    {"agendamento", "numero", "data_final", IsIsoDate},
    {"agendamento", "numero", "hora_final", IsIsoTime},
    {"agendamento", "numero", "incluido_em", IsIsoMoment},
    {"agendamento", "numero", "alterado_em", IsIsoMoment},
    {"pacote", "codigo", "criado_em", IsIsoMoment},
    {"pre_venda", "codigo", "criada_em", IsIsoMoment},
    {"auditoria", "codigo", "momento", IsMomentOfZone},
    {"feriado", "codigo", "data", IsIsoDate},
    {"expediente", "codigo", "hora_inicial", IsIsoTime},
    {"expediente", "codigo", "hora_final", IsIsoEndTime},
    {"horario_do_funcionario", "codigo", "hora_inicial", IsIsoTime},
    {"horario_do_funcionario", "codigo", "hora_final", IsIsoEndTime},
    {"ausencia", "codigo", "data_inicial", IsIsoDate},
    {"ausencia", "codigo", "hora_inicial", IsIsoTime},
    {"ausencia", "codigo", "data_final", IsIsoDate},
    {"ausencia", "codigo", "hora_final", IsIsoEndTime},
    {"lista_de_espera", "codigo", "data_inicial", IsIsoDate},
    {"lista_de_espera", "codigo", "hora_inicial", IsIsoTime},
    {"lista_de_espera", "codigo", "data_final", IsIsoDate},
    {"lista_de_espera", "codigo", "hora_final", IsIsoEndTime},
    {"lista_de_espera", "codigo", "incluido_em", IsIsoMoment},
    {"lista_de_espera", "codigo", "alterado_em", IsIsoMoment},
};

struct NamedTable {
    const char* table;
    const char* key;
};
constexpr NamedTable NamedTables[] = {
    {"tipo_de_servico", "numero"}, {"servico", "codigo"}, {"funcionario", "codigo"},
    {"especie", "codigo"},         {"raca", "codigo"},    {"cliente", "codigo"},
    {"animal", "codigo"},
};

/// Calls `visit` with the number of each row of the table and two of its texts; a Null is left out. The rows
/// come in pages.
template <class Visit>
void ForEachText(Database& database, const NamedTable& table, const std::string& columns, Visit visit)
{
    const std::string key = table.key;
    long long number = 0, after = std::numeric_limits<long long>::min();
    std::string first;
    Nullable<std::string> second;
    soci::statement statement =
        (database.Session().prepare << "select " + key + ", " + columns + " from " + table.table + " where "
                 + key + " > :apos order by " + key + " limit " + std::to_string(PageSize),
         soci::into(number), soci::into(first), soci::into(second.value, second.state),
         soci::use(after, "apos"));
    WalkPages(
        statement,
        [&] {
            if (!second.IsNull())
                visit(table.table + (" " + std::to_string(number)), first, second.value);
        },
        [&] { after = number; });
}

void FindWrongTexts(const DatedColumn& dated, Database& database, std::vector<std::string>& problems)
{
    ForEachText(database, {dated.table, dated.key}, std::string("'', ") + dated.column,
                [&](const std::string& row, const std::string&, const std::string& text) {
                    if (!dated.isRight(text))
                        problems.push_back(row + ": \"" + text + "\" em " + dated.column
                                           + " não é uma data ou hora.");
                });
}

} // namespace

int PassesOverTexts() { return static_cast<int>(std::size(DatedColumns) + std::size(NamedTables)); }

void FindBrokenTexts(Database& database, std::vector<std::string>& problems, const Passed& passed)
{
    const std::vector<StoredTable> tables = StoredTables(database);
    for (const DatedColumn& dated : DatedColumns) {
        if (Has(tables, dated.table))
            FindWrongTexts(dated, database, problems);
        passed();
    }
    // Texts that an older version has folded are folded anew when the database is opened for work.
    if (VersionOf(database) != NewestVersion(CurrentMigrations()))
        return;
    for (const NamedTable& table : NamedTables) {
        ForEachText(database, table, "nome, nome_de_busca",
                    [&](const std::string& row, const std::string& name, const std::string& folded) {
                        if (folded != FoldText(name))
                            problems.push_back(row + ": o nome \"" + name
                                               + "\" não é encontrado na pesquisa.");
                    });
        passed();
    }
}

} // namespace kova::family
