#include "family/data/engine/fold_text.hpp"
#include "family/data/engine/key.hpp"
#include "family/data/migrations/schemas.hpp"

namespace kova::family {

namespace {

/// A column that keeps the folded text of another, or of two with a line break between them.
struct FoldedColumn {
    const char* table;
    const char* key;
    const char* column;
    const char* first;
    const char* second = nullptr;
    const char* condition = "";
};

constexpr FoldedColumn FoldedColumns[] = {
    {"tipo_de_servico", "numero", "nome_de_busca", "nome"},
    {"servico", "codigo", "nome_de_busca", "nome"},
    {"funcionario", "codigo", "nome_de_busca", "nome"},
    {"especie", "codigo", "nome_de_busca", "nome"},
    {"raca", "codigo", "nome_de_busca", "nome"},
    {"animal", "codigo", "nome_de_busca", "nome"},
    {"cliente", "codigo", "nome_de_busca", "nome"},
    {"cliente", "codigo", "nomes_de_busca", "apelido", "nome"},
    {"cliente", "codigo", "endereco_de_busca", "endereco_completo_com_cep"},
    {"agendamento", "numero", "texto_de_busca", "nome_do_cliente", "nome_do_animal",
     " where tipo_do_agendamento = 1"},
};

struct Outdated {
    Key key;
    std::string folded;
};

std::string FoldedOf(const FoldedColumn& column, const std::string& first, const std::string& second)
{
    return column.second ? FoldText(first) + "\n" + FoldText(second) : FoldText(first);
}

std::vector<Outdated> FindOutdated(soci::session& session, const FoldedColumn& column)
{
    Key key = 0;
    std::string kept, first, second;
    soci::statement statement =
        (session.prepare << std::string("select ") + column.key + ", " + column.column + ", " + column.first
                 + ", " + (column.second ? column.second : "''") + " from " + column.table + column.condition,
         soci::into(key), soci::into(kept), soci::into(first), soci::into(second));
    std::vector<Outdated> outdated;
    statement.execute();
    while (statement.fetch()) {
        if (std::string folded = FoldedOf(column, first, second); folded != kept)
            outdated.push_back({key, std::move(folded)});
    }
    return outdated;
}

} // namespace

std::vector<std::string> SchemaOfVersion5(const Dialect&) { return {}; }

void FoldTextsAnew(soci::session& session, const Dialect&)
{
    for (const FoldedColumn& column : FoldedColumns) {
        for (const Outdated& row : FindOutdated(session, column))
            session << std::string("update ") + column.table + " set " + column.column + " = :folded where "
                    + column.key + " = :key",
                soci::use(row.folded), soci::use(row.key);
    }
}

} // namespace kova::family
