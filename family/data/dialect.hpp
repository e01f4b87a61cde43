#pragma once

#include <string>
#include <vector>

namespace kova::family {

/// What differs between the engines that keep the data; everything else is one SQL.
struct Dialect {
    /// Name by which the back end of the engine is loaded.
    std::string backend;
    /// Type of a key that the engine numbers itself, never giving a number twice.
    std::string identity;
    std::string bigInteger;
    /// A text that orders by its bytes, as the folded texts are ordered.
    std::string orderedText;
    /// Begins a transaction that writes. What it has locked cannot be changed by another connection before it
    /// ends: that one waits, or fails.
    std::string beginOfWrite;
    /// Appended to a selection inside such a transaction: nobody else may change or lock the rows found
    /// before it ends. A selection of several tables locks the rows of all of them.
    std::string lockRow;
    /// The function that tells at which character a text holds another, from 1.
    std::string position;
    /// The statements that make the engine add one to the row of contador_de_alteracoes that bears the
    /// table's name, whenever a row comes or goes or one of these columns is written.
    std::vector<std::string> (*countChanges)(const std::string& table, const std::string& columns);
    /// Run on every connection before anything else.
    std::vector<std::string> settings;
};

const Dialect& SqliteDialect();
const Dialect& PostgresqlDialect();

} // namespace kova::family
