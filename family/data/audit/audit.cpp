#include "family/data/audit/audit.hpp"

#include "agenda/contracts/utf8.hpp"
#include "family/data/audit/audit_chain.hpp"
#include "family/data/audit/stamp.hpp"

#include <nlohmann/json.hpp>

namespace kova::family {

namespace {

AuditRow RowOf(const Database& database, const Author& author, const char* table, Key key,
               const char* operation)
{
    AuditRow row;
    row.momento = StampOfLine(database, author);
    row.usuario = utf8::WellFormed(author.code + " - " + author.name);
    row.posto = utf8::WellFormed(author.desk);
    row.tabela = table;
    row.chave = key;
    row.operacao = operation;
    return row;
}

/// The values with the number of the import that the author writes in.
AuditValues WithImport(AuditValues values, const Author& author)
{
    if (author.importNumber != 0)
        values.Add(ImportColumn, author.importNumber);
    return values;
}

} // namespace

AuditValues& AuditValues::Add(std::string_view column, long long value) { return Keep(column, value); }

AuditValues& AuditValues::Add(std::string_view column, const std::string& value)
{
    return Keep(column, value);
}

AuditValues& AuditValues::Add(std::string_view column, const Nullable<std::string>& value)
{
    return value.IsNull() ? Keep(column, nullptr) : Keep(column, value.value);
}

AuditValues& AuditValues::Add(std::string_view column, const Nullable<Key>& value)
{
    return value.IsNull() ? Keep(column, nullptr) : Keep(column, value.value);
}

AuditValues& AuditValues::Add(std::string_view column, const Nullable<int>& value)
{
    return value.IsNull() ? Keep(column, nullptr) : Keep(column, value.value);
}

AuditValues& AuditValues::Keep(std::string_view column, Kept value)
{
    columns_.emplace_back(column, std::move(value));
    return *this;
}

std::string AuditValues::Line() const
{
    auto line = nlohmann::ordered_json::object();
    for (const auto& [column, kept] : columns_)
        std::visit([&line, &key = column](const auto& value) { line[key] = value; }, kept);
    // A text that is no UTF-8 loses the characters that are none: the write and its line count for more.
    return line.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

void AuditInsertion(Database& database, const Author& author, const char* table, Key key,
                    const AuditValues& after)
{
    AuditRow row = RowOf(database, author, table, key, audit_operation::Insertion);
    row.depois = WithImport(after, author).Line();
    AddLine(database, row);
}

void AuditImport(Database& database, const Author& author, const AuditValues& what)
{
    AuditRow row = RowOf(database, author, ImportsTable, author.importNumber, audit_operation::Import);
    row.depois = what.Line();
    AddLine(database, row);
}

void AuditUndoneImport(Database& database, const Author& author, Key number, const AuditValues& what)
{
    AuditRow row = RowOf(database, author, ImportsTable, number, audit_operation::ImportUndone);
    row.depois = what.Line();
    AddLine(database, row);
}

void AuditChange(Database& database, const Author& author, const char* table, Key key,
                 const AuditValues& before, const AuditValues& after)
{
    AuditRow row = RowOf(database, author, table, key, audit_operation::Change);
    row.antes = before.Line();
    row.depois = WithImport(after, author).Line();
    AddLine(database, row);
}

void AuditRemoval(Database& database, const Author& author, const char* table, Key key,
                  const AuditValues& before)
{
    AuditRow row = RowOf(database, author, table, key, audit_operation::Removal);
    row.antes = before.Line();
    AddLine(database, row);
}

void AuditRemovals(Database& database, const Author& author, const char* table,
                   std::span<const std::pair<Key, AuditValues>> before)
{
    std::vector<AuditRow> rows;
    for (const auto& [key, values] : before) {
        rows.push_back(RowOf(database, author, table, key, audit_operation::Removal));
        rows.back().antes = values.Line();
    }
    AddLines(database, std::move(rows));
}

void AuditMerging(Database& database, const Author& author, const char* table, Key kept, Key gone,
                  AuditValues what)
{
    AuditRow row = RowOf(database, author, table, kept, audit_operation::Merging);
    row.depois = what.Add("unido", gone).Line();
    AddLine(database, row);
    row.chave = gone;
    row.depois = AuditValues().Add("unido_a", kept).Line();
    AddLine(database, row);
}

void AuditRestoration(Database& database, const Author& author, const char* table, Key key,
                      const AuditValues& after)
{
    AuditRow row = RowOf(database, author, table, key, audit_operation::Restoration);
    row.depois = after.Line();
    AddLine(database, row);
}

void AuditAnonymisation(Database& database, const Author& author, const char* table, Key key,
                        const AuditValues& what)
{
    AuditRow row = RowOf(database, author, table, key, audit_operation::Anonymisation);
    row.depois = what.Line();
    AddLine(database, row);
}

void AuditAccess(Database& database, const Author& author, const char* operation, Key user,
                 const AuditValues& what)
{
    AuditRow row = RowOf(database, author, "usuario", user, operation);
    row.depois = what.Line();
    AddLine(database, row);
}

} // namespace kova::family
