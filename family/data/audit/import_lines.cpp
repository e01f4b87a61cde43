#include "family/data/audit/import_lines.hpp"

#include "agenda/contracts/utf8.hpp"
#include "family/data/audit/audit.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/engine/nullable.hpp"
#include "family/data/rows/page_size.hpp"

#include <algorithm>
#include <charconv>
#include <limits>

namespace kova::family {

namespace {

/// Runs what asks the engine directly.
template <class Use> void Guarded(Database& database, Use use)
{
    try {
        use(database.Session());
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
}

std::string TextIn(const AuditedColumns& columns, std::string_view column)
{
    const auto found = columns.find(column);
    return found == columns.end() ? std::string() : found->second.value_or("");
}

std::optional<long long> NumberIn(const AuditedColumns& columns, std::string_view column)
{
    const std::string text = TextIn(columns, column);
    long long number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    return read.ec == std::errc() ? std::optional(number) : std::nullopt;
}

/// A line about an import itself.
struct LineOfImport {
    Key number = 0;
    AuditLine line;
};

ImportLine Told(const LineOfImport& of)
{
    const AuditedColumns& what = of.line.after;
    ImportLine told;
    told.number = of.number;
    told.line = of.line;
    told.registerName = TextIn(what, "cadastro");
    told.path = TextIn(what, "arquivo");
    told.encoding = TextIn(what, "codificacao");
    told.records = NumberIn(what, "linhas").value_or(0);
    told.added = NumberIn(what, "novos");
    told.changed = NumberIn(what, "alterados");
    return told;
}

/// The last first.
std::vector<LineOfImport> FindLines(Database& database)
{
    const std::string table = ImportsTable;
    std::vector<LineOfImport> lines;
    Guarded(database, [&](soci::session& session) {
        LineOfImport found;
        AuditLine& line = found.line;
        Nullable<std::string> after;
        soci::statement statement =
            (session.prepare << "select codigo, chave, momento, usuario, posto, operacao, depois"
                                " from auditoria where tabela = :tabela order by codigo desc",
             soci::into(line.code), soci::into(found.number), soci::into(line.moment), soci::into(line.user),
             soci::into(line.desk), soci::into(line.operation), soci::into(after.value, after.state),
             soci::use(table, "tabela"));
        statement.execute();
        while (statement.fetch()) {
            lines.push_back(found);
            for (std::string* text : {&lines.back().line.moment, &lines.back().line.user,
                                      &lines.back().line.desk, &lines.back().line.operation})
                *text = utf8::WellFormed(*text);
            lines.back().line.after = ReadAuditedColumns(after);
        }
    });
    return lines;
}

/// The lines of an import's rows before that code. An import's number is the last that such a line tells.
std::vector<ImportedRow> ReadPage(Database& database, const ImportLine& of, Key before)
{
    const std::string ending = "%\"" + std::string(ImportColumn) + "\":" + std::to_string(of.number) + "}";
    const Key behind = of.line.code;
    const int most = static_cast<int>(PageSize);
    std::vector<ImportedRow> rows;
    Guarded(database, [&](soci::session& session) {
        ImportedRow row;
        Nullable<std::string> former, written;
        soci::statement statement =
            (session.prepare << "select codigo, tabela, chave, antes, depois from auditoria"
                                " where codigo > :apos and codigo < :antes_de and depois like :fim"
                                " order by codigo desc limit :quantas",
             soci::into(row.line), soci::into(row.table), soci::into(row.key),
             soci::into(former.value, former.state), soci::into(written.value, written.state),
             soci::use(behind, "apos"), soci::use(before, "antes_de"), soci::use(ending, "fim"),
             soci::use(most, "quantas"));
        statement.execute();
        while (statement.fetch()) {
            rows.push_back(row);
            rows.back().isNew = former.IsNull();
            rows.back().before = ReadAuditedColumns(former);
            rows.back().after = ReadAuditedColumns(written);
        }
    });
    return rows;
}

} // namespace

std::vector<ImportLine> FindImports(Database& database)
{
    std::vector<ImportLine> imports;
    std::map<Key, AuditLine> undone;
    for (const LineOfImport& of : FindLines(database)) {
        if (of.line.operation == audit_operation::ImportUndone)
            undone[of.number] = of.line;
        else if (of.line.operation == audit_operation::Import)
            imports.push_back(Told(of));
    }
    for (ImportLine& one : imports) {
        if (const auto back = undone.find(one.number); back != undone.end())
            one.undone = back->second;
    }
    return imports;
}

void ForEachRowOf(const ImportLine& of, Database& database,
                  const std::function<void(const ImportedRow& row)>& visit)
{
    Key before = std::numeric_limits<Key>::max();
    for (bool goesOn = true; goesOn;) {
        const std::vector<ImportedRow> page = ReadPage(database, of, before);
        goesOn = page.size() == PageSize;
        std::ranges::for_each(page, visit);
        if (!page.empty())
            before = page.back().line;
    }
}

} // namespace kova::family
