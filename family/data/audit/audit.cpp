#include "family/data/audit/audit.hpp"

#include "family/data/rows/insert_row.hpp"

#include <cstdio>

namespace kova::family {

namespace {

std::string Quoted(std::string_view text)
{
    std::string quoted = "\"";
    for (const char character : text) {
        if (character == '"' || character == '\\')
            quoted += '\\';
        if (static_cast<unsigned char>(character) >= 0x20) {
            quoted += character;
            continue;
        }
        char code[8];
        std::snprintf(code, sizeof code, "\\u%04x", static_cast<unsigned>(character));
        quoted += code;
    }
    return quoted + '"';
}

AuditRow RowOf(const Author& author, const char* table, Key key, const char* operation)
{
    AuditRow row;
    row.momento = author.moment;
    row.usuario = author.code + " - " + author.name;
    row.posto = author.desk;
    row.tabela = table;
    row.chave = key;
    row.operacao = operation;
    return row;
}

} // namespace

AuditValues& AuditValues::Add(std::string_view column, long long value)
{
    return AddWritten(column, std::to_string(value));
}

AuditValues& AuditValues::Add(std::string_view column, const std::string& value)
{
    return AddWritten(column, Quoted(value));
}

AuditValues& AuditValues::Add(std::string_view column, const Nullable<std::string>& value)
{
    return AddWritten(column, value.IsNull() ? "null" : Quoted(value.value));
}

AuditValues& AuditValues::Add(std::string_view column, const Nullable<Key>& value)
{
    return AddWritten(column, value.IsNull() ? "null" : std::to_string(value.value));
}

AuditValues& AuditValues::Add(std::string_view column, const Nullable<int>& value)
{
    return AddWritten(column, value.IsNull() ? "null" : std::to_string(value.value));
}

AuditValues& AuditValues::AddWritten(std::string_view column, const std::string& written)
{
    members_.append(members_.empty() ? "" : ",").append(Quoted(column)).append(":").append(written);
    return *this;
}

void AuditInsertion(Database& database, const Author& author, const char* table, Key key,
                    const AuditValues& after)
{
    AuditRow row = RowOf(author, table, key, audit_operation::Insertion);
    row.depois = after.Line();
    Insert(database, row);
}

void AuditChange(Database& database, const Author& author, const char* table, Key key,
                 const AuditValues& before, const AuditValues& after)
{
    AuditRow row = RowOf(author, table, key, audit_operation::Change);
    row.antes = before.Line();
    row.depois = after.Line();
    Insert(database, row);
}

void AuditRemoval(Database& database, const Author& author, const char* table, Key key,
                  const AuditValues& before)
{
    AuditRow row = RowOf(author, table, key, audit_operation::Removal);
    row.antes = before.Line();
    Insert(database, row);
}

void AuditRestoration(Database& database, const Author& author, const char* table, Key key,
                      const AuditValues& after)
{
    AuditRow row = RowOf(author, table, key, audit_operation::Restoration);
    row.depois = after.Line();
    Insert(database, row);
}

} // namespace kova::family
