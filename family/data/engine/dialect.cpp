#include "family/data/engine/dialect.hpp"

#include "family/data/engine/change_count.hpp"
#include "family/data/engine/server_client.hpp"

#include <soci/sqlite3/soci-sqlite3.h>

namespace kova::family {

namespace {

const soci::backend_factory& BackEndOfFiles() { return *soci::factory_sqlite3(); }

const soci::backend_factory& BackEndOfServers() { return RequireServerClient().BackEnd(); }

std::string AddOne(const std::string& table)
{
    return "update contador_de_alteracoes set alteracoes = alteracoes + 1 where tabela = '" + table + "'";
}

std::vector<std::string> CountByTriggers(const std::string& table, const std::string& columns)
{
    const auto trigger = [&](const std::string& name, const std::string& event) {
        return "create trigger " + table + "_" + name + "_contada after " + event + " on " + table + " begin "
            + AddOne(table) + "; end";
    };
    return {trigger("inclusao", "insert"), trigger("exclusao", "delete"),
            trigger("alteracao", "update of " + columns)};
}

/// A row that a transaction writes again and again gets slower each time, so that a transaction counts only
/// once: the others see its changes at once, when it ends.
std::vector<std::string> CountByTriggerFunction(const std::string& table, const std::string& columns)
{
    const std::string function = "conta_alteracao_de_" + table;
    return {"create function " + function + "() returns trigger language plpgsql as $$ begin " + AddOne(table)
                + " and xmin <> pg_current_xact_id()::xid; return null; end $$",
            "create trigger " + table + "_alteracao_contada after insert or delete or update of " + columns
                + " on " + table + " for each statement execute function " + function + "()"};
}

/// Goes through the tables whose keys the engine numbers. A number never goes back.
constexpr const char* NumberOn =
    "do $$ declare numbered record; begin"
    " for numbered in select table_name as t, column_name as k,"
    " pg_get_serial_sequence(quote_ident(table_name), column_name) as s from information_schema.columns"
    " where table_schema = current_schema() and is_identity = 'YES' loop"
    " execute format('select setval(%L, highest) from (select max(%I) as highest from %I) as keys, %s as "
    "given"
    " where highest > last_value or (highest = last_value and not is_called)',"
    " numbered.s, numbered.k, numbered.t, numbered.s);"
    " end loop; end $$";

std::string SequenceOf(const std::string& table, const std::string& key)
{
    return "pg_get_serial_sequence('" + table + "', '" + key + "')";
}

std::string LastOfSequence(const std::string& table, const std::string& key)
{
    return "select coalesce(pg_sequence_last_value(" + SequenceOf(table, key) + "::regclass), 0)";
}

std::vector<std::string> SetSequence(const std::string& table, const std::string& key, long long last)
{
    return {"select setval(" + SequenceOf(table, key) + ", " + std::to_string(last) + ")"};
}

std::string LastOfFile(const std::string& table, const std::string&)
{
    return "select coalesce(max(seq), 0) from sqlite_sequence where name = '" + table + "'";
}

std::vector<std::string> NumberFileAfter(const std::string& table, const std::string&, long long last)
{
    return {"delete from sqlite_sequence where name = '" + table + "'",
            "insert into sqlite_sequence (name, seq) values ('" + table + "', " + std::to_string(last) + ")"};
}

constexpr const char* ForgetMarks =
    "delete from gravacao where momento <"
    " to_char((now() at time zone 'utc') - interval '2 days', 'YYYY-MM-DD HH24:MI:SS')";

/// Whoever changes the schema waits for those who hold this lock, and they for him.
constexpr const char* BeginOnLockedSchema =
    "begin isolation level read committed; select pg_advisory_xact_lock_shared(20081113); ";

/// What every beginning of a write selects.
std::string VersionRightsAnd(const std::string& moment)
{
    return "select max(versao), (" + ChangeCount::Selection(CountedRights()) + "), " + moment;
}

std::string OnServer()
{
    return VersionRightsAnd("to_char(clock_timestamp(), 'YYYY-MM-DD HH24:MI:SSTZH:TZM')");
}

std::string BeginOfWriteOnServer() { return BeginOnLockedSchema + OnServer() + " from versao_do_esquema"; }

std::string MarkedWriteOnServer(const std::string& name)
{
    return "prepare " + name
        + " (text) as with marca as (insert into gravacao (identificador, momento) values ($1,"
          " to_char(now() at time zone 'utc', 'YYYY-MM-DD HH24:MI:SS'))"
          " on conflict (identificador) do nothing returning identificador) "
        + OnServer() + ", (select count(*) from marca) from versao_do_esquema";
}

/// What a desk's write looks for it finds by keys, and by indexes that are right for all values. To plan it
/// for the values of each write takes the server longer than the look itself. A plan that is kept must not be
/// one for a table that was small when it was made.
constexpr const char* PlanOnceForAllValues =
    "set local plan_cache_mode = force_generic_plan; set local enable_seqscan = off; ";

std::string BeginOfMarkedWriteOnServer(const std::string& name, const std::string& mark)
{
    return std::string(BeginOnLockedSchema) + PlanOnceForAllValues + "execute " + name + " ('" + mark + "')";
}

constexpr const char* BeginOfSchemaChangeOnServer =
    "begin isolation level read committed; select pg_advisory_xact_lock(20081113)";

/// Names stand for the tables of one schema, whatever the role's own settings say: of the one that has the
/// agenda's tables, or of the usual one where none has them, or several.
constexpr const char* FindSchema =
    "select set_config('search_path', quote_ident(coalesce((select min(cast(n.nspname as text))"
    " from pg_catalog.pg_class c join pg_catalog.pg_namespace n on n.oid = c.relnamespace"
    " where c.relname = 'versao_do_esquema' and c.relkind = 'r' having count(*) = 1), 'public')), false)";

/// A desk that has vanished in the middle of a transaction must not hold its locks for long. Long work
/// has its own measure: between two of its statements there may be much to do. No statement here is worth
/// being compiled.
constexpr const char* SettingsOfServer =
    "set lock_timeout = '5s'; set idle_in_transaction_session_timeout = '10s';"
    " set tcp_keepalives_idle = 10; set tcp_keepalives_interval = 5; set tcp_keepalives_count = 3;"
    " set tcp_user_timeout = '15s'; set client_min_messages = error; set jit = off";

std::vector<std::string> SettingsOnServer(const std::string& more)
{
    return {std::string(SettingsOfServer) + "; " + FindSchema + "; " + more};
}

Dialect Postgresql(const char* moreSettings)
{
    return {
        .backEnd = BackEndOfServers,
        .identity = "bigint generated by default as identity primary key",
        .bigInteger = "bigint",
        .orderedText = "text collate \"C\"",
        .beginOfWrite = {BeginOfWriteOnServer()},
        .beginOfSchemaChange = BeginOfSchemaChangeOnServer,
        .beginOfSnapshot = "begin isolation level repeatable read read only",
        .secondsNow = "select cast(extract(epoch from clock_timestamp()) as bigint)",
        .lockRow = " for no key update",
        .shareRow = " for share",
        .position = "strpos",
        .countChanges = CountByTriggerFunction,
        .countVersionTables = "select count(to_regclass('versao_do_esquema'))",
        .pinCounting = {"alter function conta_alteracao_de_cliente() set search_path from current"},
        .holdRules = HoldByConstraints,
        .liftRules = DropConstraints,
        .confirmRule = ConfirmConstraint,
        .lockImport = "select pg_advisory_xact_lock(20081114)",
        .changesOfOthers = "",
        .numberOn = NumberOn,
        .lastGiven = LastOfSequence,
        .numberAfter = SetSequence,
        .markedWrite = MarkedWriteOnServer,
        .beginOfMarkedWrite = BeginOfMarkedWriteOnServer,
        .forgetMarks = ForgetMarks,
        .settings = SettingsOnServer(moreSettings),
    };
}

} // namespace

const Dialect& SqliteDialect()
{
    static const Dialect dialect{
        .backEnd = BackEndOfFiles,
        .identity = "integer primary key autoincrement",
        .bigInteger = "integer",
        .orderedText = "text",
        // The lock is taken at once: a transaction that begins by reading could not wait for it later.
        .beginOfWrite = {"begin immediate", VersionRightsAnd("''") + " from versao_do_esquema"},
        .beginOfSchemaChange = "begin immediate",
        .beginOfSnapshot = "begin",
        .secondsNow = "",
        // Nobody else writes while such a transaction is open.
        .lockRow = "",
        .shareRow = "",
        .position = "instr",
        .countChanges = CountByTriggers,
        .countVersionTables =
            "select count(*) from sqlite_master where type = 'table' and name = 'versao_do_esquema'",
        .pinCounting = {},
        .holdRules = HoldByTriggers,
        .liftRules = DropTriggers,
        .confirmRule = ConfirmNothing,
        .lockImport = "",
        .changesOfOthers = "pragma data_version",
        .numberOn = "",
        .lastGiven = LastOfFile,
        .numberAfter = NumberFileAfter,
        .markedWrite = nullptr,
        .beginOfMarkedWrite = nullptr,
        .forgetMarks = "",
        .settings = {"pragma busy_timeout = 5000", "pragma synchronous = full", "pragma foreign_keys = on",
                     "pragma cache_size = -16000"},
    };
    return dialect;
}

const Dialect& PostgresqlDialect()
{
    static const Dialect dialect = Postgresql("set statement_timeout = '30s'");
    return dialect;
}

const Dialect& PostgresqlDialectForLongWork()
{
    static const Dialect dialect = Postgresql("set statement_timeout = 0;"
                                              " set idle_in_transaction_session_timeout = '10min'");
    return dialect;
}

const Dialect& PostgresqlDialectForReading()
{
    static const Dialect dialect =
        Postgresql("set statement_timeout = 0; set idle_in_transaction_session_timeout = '10min';"
                   " set default_transaction_read_only = on");
    return dialect;
}

} // namespace kova::family
