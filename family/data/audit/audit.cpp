#include "family/data/audit/audit.hpp"

#include "agenda/contracts/utf8.hpp"
#include "family/data/audit/audit_chain.hpp"
#include "family/data/audit/short_names.hpp"
#include "family/data/audit/stamp.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>

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

/// What the line tells itself is not told twice.
void DropAuthor(const Database& database, AuditValues& after, const Author& author,
                AuditValues* before = nullptr)
{
    const auto drop = [&](std::string_view column, const std::string& value) {
        if (!after.Tells(column, value))
            return;
        after.Drop(column);
        if (before)
            before->Drop(column);
    };
    const auto& [addedAt, addedBy, changedAt, changedBy] = AuthorColumns;
    drop(before ? changedAt : addedAt, StampOfRow(database, author));
    drop(before ? changedBy : addedBy, author.name);
}

/// The values with the line that is undone and, behind all others, the number of the import that the author
/// writes in.
AuditValues WithCause(AuditValues values, const Author& author)
{
    if (author.undoneLine != 0)
        values.Add(UndoneLineColumn, author.undoneLine);
    if (author.importNumber != 0)
        values.Add(ImportColumn, author.importNumber);
    return values;
}

} // namespace

AuditValues& AuditValues::Add(std::string_view column, long long value) { return Keep(column, value); }

AuditValues& AuditValues::Add(std::string_view column, const std::string& value)
{
    return Keep(column, value, value.empty());
}

AuditValues& AuditValues::Add(std::string_view column, const Nullable<std::string>& value)
{
    return value.IsNull() ? Keep(column, nullptr, true) : Keep(column, value.value);
}

AuditValues& AuditValues::Add(std::string_view column, const Nullable<Key>& value)
{
    return value.IsNull() ? Keep(column, nullptr, true) : Keep(column, value.value);
}

AuditValues& AuditValues::Add(std::string_view column, const Nullable<int>& value)
{
    return value.IsNull() ? Keep(column, nullptr, true) : Keep(column, value.value);
}

AuditValues& AuditValues::Keep(std::string_view column, Kept value, bool isEmpty)
{
    columns_.push_back({std::string(column), std::move(value), isEmpty});
    return *this;
}

void AuditValues::Drop(std::string_view column)
{
    std::erase_if(columns_, [&](const Value& value) { return value.column == column; });
}

void AuditValues::DropEmpty()
{
    std::erase_if(columns_, [](const Value& value) { return value.isEmpty; });
}

void AuditValues::DropAlike(AuditValues& one, AuditValues& other, std::span<const std::string_view> together)
{
    const auto belongs = [&](const Value& value) { return std::ranges::count(together, value.column) > 0; };
    const auto differs = [&](const Value& value) { return belongs(value) && !other.HasAlike(value); };
    const bool isSplit = std::ranges::any_of(one.columns_, differs);
    std::vector<std::string> alike;
    for (const Value& value : one.columns_) {
        if (other.HasAlike(value) && !(isSplit && belongs(value)))
            alike.push_back(value.column);
    }
    if (alike.size() == one.columns_.size() && alike.size() == other.columns_.size() && !alike.empty())
        alike.erase(alike.begin());
    for (const std::string& column : alike) {
        one.Drop(column);
        other.Drop(column);
    }
}

bool AuditValues::HasAlike(const Value& value) const
{
    return std::ranges::any_of(columns_, [&](const Value& other) {
        return other.column == value.column && other.kept == value.kept;
    });
}

bool AuditValues::Tells(std::string_view column, const std::string& value) const
{
    return std::ranges::any_of(
        columns_, [&](const Value& other) { return other.column == column && other.kept == Kept(value); });
}

std::string AuditValues::Line(std::string_view table) const
{
    auto line = nlohmann::ordered_json::object();
    for (const Value& value : columns_)
        std::visit([&](const auto& kept) { line[std::string(NameInLine(table, value.column))] = kept; },
                   value.kept);
    // A text that is no UTF-8 loses the characters that are none: the write and its line count for more.
    return line.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

void AuditInsertion(Database& database, const Author& author, const char* table, Key key, AuditValues after)
{
    AuditRow row = RowOf(database, author, table, key,
                         author.isRestoring ? audit_operation::Restoration : audit_operation::Insertion);
    after.DropEmpty();
    DropAuthor(database, after, author);
    row.depois = WithCause(after, author).Line(table);
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

void AuditChange(Database& database, const Author& author, const char* table, Key key, AuditValues before,
                 AuditValues after, std::span<const std::string_view> together)
{
    AuditRow row = RowOf(database, author, table, key, audit_operation::Change);
    DropAuthor(database, after, author, &before);
    AuditValues::DropAlike(before, after, together);
    row.antes = before.Line(table);
    row.depois = WithCause(after, author).Line(table);
    AddLine(database, row);
}

void AuditRemoval(Database& database, const Author& author, const char* table, Key key, AuditValues before)
{
    AuditRow row = RowOf(database, author, table, key, audit_operation::Removal);
    before.DropEmpty();
    row.antes = before.Line(table);
    AddLine(database, row);
}

void AuditRemovals(Database& database, const Author& author, const char* table,
                   std::span<const std::pair<Key, AuditValues>> before)
{
    std::vector<AuditRow> rows;
    for (const auto& [key, values] : before) {
        rows.push_back(RowOf(database, author, table, key, audit_operation::Removal));
        AuditValues given = values;
        given.DropEmpty();
        rows.back().antes = given.Line(table);
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

void AuditRestoration(Database& database, const Author& author, const char* table, Key key, AuditValues after)
{
    AuditRow row = RowOf(database, author, table, key, audit_operation::Restoration);
    after.DropEmpty();
    row.depois = WithCause(after, author).Line(table);
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
