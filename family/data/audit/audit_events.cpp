#include "family/data/audit/audit_events.hpp"

#include "family/data/audit/audit_chain.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/engine/migration.hpp"
#include "family/data/rows/insert_new_row.hpp"
#include "family/data/rows/table_layouts.hpp"
#include "system/computer_name.hpp"

namespace kova::family {

namespace {

/// Whoever is not a user of the shop.
constexpr const char* NoUser = "0";
constexpr const char* SchemaTable = "versao_do_esquema";
/// The first schema in which the audit knows the computer.
constexpr int SchemaWithDesks = 4;

std::string MomentOfEngine(Database& database)
{
    std::string moment;
    database.Session() << (database.GetDialect().IsServer()
                               ? "select to_char(clock_timestamp(), 'YYYY-MM-DD HH24:MI:SSTZH:TZM')"
                               : "select datetime('now', 'localtime')"),
        soci::into(moment);
    return moment;
}

/// Also where the schema is one of before the chain.
void AddLineToAny(Database& database, const AuditRow& row)
{
    try {
        const int version = VersionOf(database);
        if (Has(StoredTables(database), LinkRow::Table))
            AddLine(database, row);
        else if (version >= SchemaWithDesks)
            InsertNew(database, row);
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
}

} // namespace

void AuditExport(Database& database, const Author& author, Key customer, const AuditValues& what)
{
    AddLine(database, EventOf(database, author, ExportsTable, customer, audit_operation::Export, what));
}

void AuditPrint(Database& database, const Author& author, Key customer, const AuditValues& what)
{
    AddLine(database, EventOf(database, author, PrintsTable, customer, audit_operation::Print, what));
}

void AuditRestore(Database& database, const Author& author, const std::string& copy)
{
    AddLineToAny(database,
                 EventOf(database, author, RestoresTable, 0, audit_operation::CopyRestored,
                         AuditValues().Add("copia", copy)));
}

void AuditMigration(Database& database, int before, int after, const std::string& copy)
{
    const Author author{.code = NoUser,
                        .name = NameOfAccount(system::ThisUser()),
                        .moment = MomentOfEngine(database),
                        .desk = system::ComputerName()};
    AddLineToAny(database,
                 EventOf(database, author, SchemaTable, after, audit_operation::Migration,
                         AuditValues().Add("de", before).Add("para", after).Add("copia", copy)));
}

std::string NameOfAccount(const system::UserAccount& account)
{
    if (account.name.empty())
        return "Recepção";
    return account.fullName.empty() ? account.name : account.fullName;
}

} // namespace kova::family
