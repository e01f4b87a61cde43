#include "family/data/sources/desk_role.hpp"

#include "family/data/engine/server_connection.hpp"
#include "family/data/rows/table_layouts.hpp"
#include "family/data/sources/data_source.hpp"

#include <algorithm>
#include <functional>

namespace kova::family {

namespace {

/// A name as the server takes it, whatever stands in it.
std::string Quoted(std::string_view name)
{
    std::string quoted = "\"";
    for (const char letter : name)
        quoted += letter == '"' ? std::string("\"\"") : std::string(1, letter);
    return quoted + "\"";
}

template <class List, class Word> std::string Joined(const List& list, Word word)
{
    std::string joined;
    for (const auto& one : list)
        joined += (joined.empty() ? "" : ", ") + word(one);
    return joined;
}

constexpr const char* Audit = "auditoria";
/// What a desk only reads, what it only reads and counts, and where it leaves the marks of its writes.
constexpr const char *Chain = "elo_da_auditoria", *Version = "versao_do_esquema",
                     *Counter = "contador_de_alteracoes", *Marks = "gravacao";

/// Writes the statements for the tables of one database.
class RightsOfDesks {
public:
    RightsOfDesks(Database& database, const std::string& role) : database_(database), role_(Quoted(role))
    {
        database_.Session() << "select cast(current_schema() as text)", soci::into(schema_);
        for (const StoredTable& table : StoredTables(database_)) {
            const std::string name = table.name;
            if (name != Audit && name != Chain && name != Marks)
                shopTables_.push_back(name);
        }
    }

    std::vector<std::string> Statements()
    {
        const std::string audit = Tables({Audit, Chain});
        return {
            "revoke all on " + Tables(shopTables_) + ", " + audit + ", " + Tables({Version, Counter, Marks})
                + " from " + role_,
            "revoke insert, update, delete, truncate, references, trigger on " + audit + " from public",
            "grant usage on schema " + Quoted(schema_) + " to " + role_,
            Grant("select, insert, update, delete", Tables(shopTables_)),
            Grant("select", Tables({Audit, Chain, Version})),
            Grant("insert (" + ColumnsOfLines() + ")", Tables({Audit})),
            Grant("select, update", Tables({Counter})),
            Grant("select, insert, delete", Tables({Marks})),
            // Rows that bring their numbers along, as an import's may, have the others numbered behind them.
            Grant("select, update", "sequence " + SequencesOf(shopTables_)),
            Grant("select", "sequence " + SequencesOf({Audit})),
        };
    }

private:
    std::string Grant(const std::string& rights, const std::string& on) const
    {
        return "grant " + rights + " on " + on + " to " + role_;
    }

    std::string Full(std::string_view name) const { return Quoted(schema_) + "." + Quoted(name); }
    std::string Tables(const std::vector<std::string>& names) const
    {
        return Joined(names, [this](const std::string& name) { return Full(name); });
    }

    /// Without the code, which the server gives.
    std::string ColumnsOfLines()
    {
        std::vector<Column> columns = ColumnsOf(database_, Audit);
        std::erase_if(columns, [](const Column& column) { return column.name == "codigo"; });
        return Joined(columns, [](const Column& column) { return column.name; });
    }

    std::string SequencesOf(const std::vector<std::string>& tables)
    {
        std::vector<std::string> sequences;
        for (const StoredTable& table : StoredTables(database_)) {
            if (table.numbered && std::ranges::find(tables, table.name) != tables.end())
                sequences.push_back(SequenceOf(table));
        }
        return Joined(sequences, [](const std::string& sequence) { return sequence; });
    }

    /// With its schema, as the server writes it.
    std::string SequenceOf(const StoredTable& table)
    {
        const std::string name = Full(table.name), key = table.key;
        std::string sequence;
        database_.Session() << "select pg_get_serial_sequence(:tabela, :chave)", soci::use(name, "tabela"),
            soci::use(key, "chave"), soci::into(sequence);
        return sequence;
    }

    Database& database_;
    std::string role_, schema_;
    std::vector<std::string> shopTables_;
};

/// What a role is to the owner of the tables.
struct Standing {
    bool exists = false, isOwner = false;
};

Standing StandingOf(Database& database, const std::string& role)
{
    int roles = 0, owners = 0;
    database.Session() << "select count(*), count(*) filter (where pg_has_role(r.oid, t.relowner, 'usage'))"
                          " from pg_roles r, pg_class t where r.rolname = :papel and t.relname = 'auditoria'"
                          " and t.relnamespace = current_schema()::regnamespace",
        soci::use(role, "papel"), soci::into(roles), soci::into(owners);
    return {roles > 0, owners > 0};
}

bool IsOwner(Database& database)
{
    std::string user;
    database.Session() << "select cast(current_user as text)", soci::into(user);
    return StandingOf(database, user).isOwner;
}

void RequireOther(Database& database, const std::string& role)
{
    if (StandingOf(database, role).isOwner)
        throw DatabaseFailure(
            "O papel \"" + role
            + "\" é dono das tabelas, ou pode o que o dono pode: a ele nada se nega. Crie outro "
              "para os postos, com \"create role NOME login\".");
}

void RequireOwnerAndRole(Database& database, const std::string& role)
{
    if (!IsOwner(database))
        throw DatabaseFailure("Só o dono das tabelas de \"" + database.Path()
                              + "\" pode dar e tirar direitos. Use o endereço dele.");
    if (!StandingOf(database, role).exists)
        throw DatabaseFailure("O papel \"" + role
                              + "\" não existe no servidor. Crie-o antes, com \"create role NOME login\".");
}

/// Runs what asks the engine directly.
template <class Use> auto Guarded(const std::string& address, Use use)
{
    if (!IsServer(address))
        throw DatabaseFailure("\"" + address + "\" é um arquivo: papéis só há em um servidor.");
    try {
        return use();
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(address, cause);
    }
}

} // namespace

std::vector<std::string> StatementsForDesks(const std::string& address, const std::string& role)
{
    return Guarded(address, [&] {
        const std::unique_ptr<Database> database = OpenNewestForReading(address);
        RequireOther(*database, role);
        return RightsOfDesks(*database, role).Statements();
    });
}

void GiveToDesks(const std::string& address, const std::string& role)
{
    Guarded(address, [&] {
        const std::shared_ptr<Database> database = OpenForLongWork(address);
        RequireOwnerAndRole(*database, role);
        RequireOther(*database, role);
        soci::transaction transaction(database->Session());
        for (const std::string& statement : RightsOfDesks(*database, role).Statements())
            database->Session() << statement;
        transaction.commit();
    });
}

} // namespace kova::family
