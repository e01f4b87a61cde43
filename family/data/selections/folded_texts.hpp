#pragma once

#include "family/data/engine/change_count.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/selections/text_rows.hpp"

#include <string>
#include <vector>

namespace kova::family {

/// A folded text of every row of a table in memory. Kept with the connection, read again when the database
/// has counted a change of the table. It is the same for both engines: no index of theirs finds a part of a
/// word without an extension that a shop may be unable to install. Use it through Database::With.
class FoldedTexts : public KeptStatement {
public:
    /// Reads the texts where they are not those of the database any more. A part does not run from one line
    /// of a text into the next.
    const TextRows& Refreshed();

protected:
    using Order = TextRows::Order;

    /// `tables` are the names under which the changes are counted; `selection` gives key and text of every
    /// row. Where the order is not that of the selection they are put into it in memory: the engine would go
    /// through its rows here and there.
    FoldedTexts(Database& database, const std::vector<std::string>& tables, const char* selection,
                Order order = Order::AsAdded);
    FoldedTexts(Database& database, const char* table, const char* selection)
        : FoldedTexts(database, std::vector<std::string>{table}, selection)
    {
    }

    /// Makes what is looked through of what the selection gave; it is that itself where a table keeps it so.
    virtual void Shape(TextOfRow&) { }

    /// Called before all texts are read.
    virtual void BeginReading() { }
    /// Takes over the changes that were counted since the texts were read. False where all are to be read.
    virtual bool TakeChanges(TextRows&, long long) { return false; }

private:
    void Read();

    TextRows rows_;
    ChangeCount changes_;
    TextOfRow read_;
    soci::statement readTexts_;
};

/// Nickname and name of every customer with a line break between them, by name, then code. About 70 bytes for
/// a customer.
struct CustomerNames : FoldedTexts {
    explicit CustomerNames(Database& database);
};

/// The address of every customer, with its postal code, by code. About 120 bytes for a customer, read when
/// somebody first looks for an address.
struct CustomerAddresses : FoldedTexts {
    explicit CustomerAddresses(Database& database);
};

/// The name of every active animal, by name, then code. About 45 bytes for an animal.
struct AnimalNames : FoldedTexts {
    explicit AnimalNames(Database& database);
};

} // namespace kova::family
