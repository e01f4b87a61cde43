#pragma once

#include "family/data/engine/row_rules.hpp"

#include <string>
#include <vector>

namespace soci {
class backend_factory;
}

namespace kova::family {

/// What differs between the engines that keep the data; everything else is one SQL.
struct Dialect {
    /// The back end of the engine. That of servers is loaded when it is asked for first, and fails as
    /// RequireServerClient.
    const soci::backend_factory& (*backEnd)();
    /// Type of a key that the engine numbers itself, never giving a number twice.
    std::string identity;
    std::string bigInteger;
    /// A text that orders by its bytes, as the folded texts are ordered.
    std::string orderedText;
    /// The statements that begin a transaction that writes rows; the last one selects the version of the
    /// schema, which nobody changes before the transaction ends, how often it was changed who may do what
    /// (CountedRights), and the moment by the clock that all desks have in common: "yyyy-mm-dd
    /// hh:mm:ss-03:00" in the server's time zone, empty where that clock is the desk's own. What it has
    /// locked cannot be changed by another connection before it ends: that one waits, or fails.
    std::vector<std::string> beginOfWrite;
    /// Begins a transaction that changes the schema. It waits for those that write, and they for it.
    std::string beginOfSchemaChange;
    /// Begins a transaction that only reads, and sees one moment from its first selection on.
    std::string beginOfSnapshot;
    /// Selects the seconds since 1970 by the clock that all desks have in common. Empty where that is the
    /// desk's own.
    std::string secondsNow;
    /// Appended to a selection inside a transaction that writes: nobody else may change or lock the rows
    /// found before it ends. A selection of several tables locks the rows of all of them.
    std::string lockRow;
    /// The same, but that others may hold the rows in this way too: nobody may change or remove them.
    std::string shareRow;
    /// The function that tells at which character a text holds another, from 1.
    std::string position;
    /// The statements that make the engine add to the row of contador_de_alteracoes that bears the table's
    /// name, whenever a row comes or goes or one of these columns is written; at least one in each
    /// transaction.
    std::vector<std::string> (*countChanges)(const std::string& table, const std::string& columns);
    /// Counts the tables named versao_do_esquema that a connection sees: 0 or 1.
    std::string countVersionTables;
    /// The statements after which the engine's own counting finds its tables, whatever schema the names of
    /// whoever writes stand for. Run over a connection of this program's.
    std::vector<std::string> pinCounting;
    /// The statements that make the engine refuse new rows that break a rule of their table; rows that break
    /// it already stay.
    std::vector<std::string> (*holdRules)(const TableRules& rules);
    /// The statements that take that back.
    std::vector<std::string> (*liftRules)(const TableRules& rules);
    /// The statement after which the engine knows that no row breaks a rule; fails where one does. Empty
    /// where it wants no such knowledge.
    std::string (*confirmRule)(const TableRules& rules, const RowRule& rule);
    /// Run first in a transaction that brings a file in: a second one waits here. Empty where the beginning
    /// of the transaction does that.
    std::string lockImport;
    /// Selects a number that is another one when another connection has changed what is stored. Empty where
    /// the engine has none.
    std::string changesOfOthers;
    /// Run after rows were written with keys of the caller's: the engine then numbers on behind the highest.
    /// Empty where it does so anyway.
    std::string numberOn;
    /// The selection of the highest number that the engine has given to a row of the table, also one that is
    /// gone; 0 where it has given none.
    std::string (*lastGiven)(const std::string& table, const std::string& key);
    /// The statements after which the engine numbers the table's next row one higher than `last`.
    std::vector<std::string> (*numberAfter)(const std::string& table, const std::string& key, long long last);
    /// Prepares on a connection, under that name, the same beginning of a transaction that bears a mark: it
    /// writes the mark, unless it stands there already, and selects how many it has written behind the other
    /// three; it waits for another transaction that is writing the same mark. Null where a connection cannot
    /// break between a commit and its answer.
    std::string (*markedWrite)(const std::string& name);
    /// The beginning of such a transaction, in one message. A mark has letters and digits only.
    std::string (*beginOfMarkedWrite)(const std::string& name, const std::string& mark);
    /// Takes marks away that nobody will ask for any more.
    std::string forgetMarks;
    /// Run on every connection before anything else.
    std::vector<std::string> settings;

    /// Whether the data lie behind a connection that can break.
    bool IsServer() const { return beginOfMarkedWrite != nullptr; }
};

const Dialect& SqliteDialect();

const Dialect& PostgresqlDialect();
/// The same for work that takes as long as it takes: building, bringing up to date, copying.
const Dialect& PostgresqlDialectForLongWork();
/// The same for connections that only read.
const Dialect& PostgresqlDialectForReading();

} // namespace kova::family
