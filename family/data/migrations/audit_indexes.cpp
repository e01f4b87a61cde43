#include "family/data/migrations/audit_indexes.hpp"

namespace kova::family {

namespace {

/// Who wrote a row and when is told by the line itself; what is kept to be searched is told by other columns.
constexpr const char* IsTold =
    "key not like '%busca%' and key not like 'incluid%' and key not like 'alterad%'";

/// The texts among the values in one of the line's columns; no numbers: who may not see prices must not find
/// them either.
std::string TextsIn(const std::string& column)
{
    return "coalesce((select group_concat(value, ' ') from json_each(case when json_valid(" + column
        + ") then " + column + " else '{}' end) where type = 'text' and " + IsTold + "), '')";
}

std::string WordsOf(const std::string& line)
{
    return TextsIn(line + ".antes") + " || ' ' || " + TextsIn(line + ".depois");
}

std::string AddWordsOf(const std::string& line)
{
    return " insert into palavras_da_auditoria (rowid, palavras) values (" + line + ".codigo, "
        + WordsOf(line) + ");";
}

std::string DropWordsOf(const std::string& line)
{
    return " insert into palavras_da_auditoria (palavras_da_auditoria, rowid, palavras) values ('delete', "
        + line + ".codigo, " + WordsOf(line) + ");";
}

/// An index of words that keeps no text; the engine does not follow the table by itself.
std::vector<std::string> IndexWordsOfFile()
{
    return {
        "create virtual table palavras_da_auditoria using fts5 (palavras, content = '', columnsize = 0,"
        " detail = none, tokenize = 'unicode61 remove_diacritics 2')",
        "insert into palavras_da_auditoria (rowid, palavras) select a.codigo, " + WordsOf("a")
            + " from auditoria a",
        "create trigger palavras_da_linha_nova after insert on auditoria begin" + AddWordsOf("new") + " end",
        "create trigger palavras_da_linha_mudada after update of antes, depois on auditoria begin"
            + DropWordsOf("old") + AddWordsOf("new") + " end",
        "create trigger palavras_da_linha_excluida after delete on auditoria begin" + DropWordsOf("old")
            + " end",
    };
}

/// The same on a server, by a function whose words an index keeps. What is no line of the audit has none.
std::vector<std::string> IndexWordsOfServer()
{
    return {
        std::string(
            "create function palavras_da_auditoria(antes text, depois text) returns tsvector language plpgsql"
            " immutable parallel safe as $$ declare textos text; begin"
            " select string_agg(v.value #>> '{}', ' ') into textos from"
            " (select key, value from jsonb_each(cast(coalesce(antes, '{}') as jsonb)) union all"
            " select key, value from jsonb_each(cast(coalesce(depois, '{}') as jsonb))) v"
            " where jsonb_typeof(v.value) = 'string' and ")
            + IsTold
            + ";"
              " return to_tsvector('simple', regexp_replace(translate(lower(coalesce(textos, '')),"
              " 'áàâãäåéèêëíìîïóòôõöúùûüçñýÁÀÂÃÄÅÉÈÊËÍÌÎÏÓÒÔÕÖÚÙÛÜÇÑÝ',"
              " 'aaaaaaeeeeiiiiooooouuuucnyaaaaaaeeeeiiiiooooouuuucny'), '[^a-z0-9]+', ' ', 'g'));"
              " exception when data_exception or program_limit_exceeded then return to_tsvector('simple', "
              "'');"
              " end $$",
        "create index auditoria_por_palavra on auditoria using gin (palavras_da_auditoria(antes, depois))",
    };
}

} // namespace

std::vector<std::string> IndexDaysOfAudit(const Dialect& dialect)
{
    // Behind the day a server keeps equal entries together, which codes would keep apart.
    const std::string day = dialect.IsServer() ? "substr(momento, 1, 10)"
                                               : "cast(replace(substr(momento, 1, 10), '-', '') as integer)";
    return {
        "create index auditoria_por_dia on auditoria (" + day + ")",
        "create index auditoria_por_usuario on auditoria (usuario, " + day + ")",
        // What most lines are is found among the days.
        "create index auditoria_por_operacao on auditoria (operacao, " + day
            + ") where operacao not in ('inclusao', 'alteracao')",
        "create index auditoria_por_tabela on auditoria (tabela, " + day + ") where tabela <> 'agendamento'",
    };
}

std::vector<std::string> IndexWordsOfAudit(const Dialect& dialect)
{
    return dialect.IsServer() ? IndexWordsOfServer() : IndexWordsOfFile();
}

} // namespace kova::family
