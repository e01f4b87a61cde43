#include "family/data/checks/rule_check.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/engine/migration.hpp"
#include "family/data/engine/nullable.hpp"
#include "family/data/sources/data_source.hpp"

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
    {"auditoria", "codigo", "momento", IsIsoMoment},
    {"feriado", "codigo", "data", IsIsoDate},
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

/// Calls `visit` with the number of each row of the table and two of its texts; a Null is left out.
template <class Visit>
void ForEachText(Database& database, const NamedTable& table, const std::string& columns, Visit visit)
{
    long long number = 0;
    std::string first;
    Nullable<std::string> second;
    soci::statement statement =
        (database.Session().prepare << "select " + std::string(table.key) + ", " + columns + " from "
                 + table.table + " order by " + table.key,
         soci::into(number), soci::into(first), soci::into(second.value, second.state));
    statement.execute();
    while (statement.fetch()) {
        if (!second.IsNull())
            visit(table.table + (" " + std::to_string(number)), first, second.value);
    }
}

} // namespace

void FindBrokenTexts(Database& database, std::vector<std::string>& problems)
{
    for (const DatedColumn& dated : DatedColumns) {
        ForEachText(database, {dated.table, dated.key}, std::string("'', ") + dated.column,
                    [&](const std::string& row, const std::string&, const std::string& text) {
                        if (!dated.isRight(text))
                            problems.push_back(row + ": \"" + text + "\" em " + dated.column
                                               + " não é uma data ou hora.");
                    });
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
    }
}

} // namespace kova::family
