#pragma once

#include "family/data/engine/change_count.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/rows/rows.hpp"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

namespace kova::family {

/// A folded text of every row of a table in memory, in an order of the table's own. Kept with the connection,
/// read again when the database has counted a change of the table. It is the same for both engines: no index
/// of theirs finds a part of a word without an extension that a shop may be unable to install. Use it through
/// Database::With.
class FoldedTexts : public KeptStatement {
public:
    /// Reads the texts where they are not those of the database any more.
    void Refresh();

    /// Places, from 0 in the order of the texts, of the rows with the part in theirs; an empty part is in
    /// all. A part does not run from one line of a text into the next.
    std::vector<std::uint32_t> PlacesWith(std::string_view part) const;
    /// The same with the places of some rows beside, each place once and in order. A key that no row has adds
    /// none.
    std::vector<std::uint32_t> PlacesWith(std::string_view part, const std::vector<Key>& others) const;

    Key KeyAt(std::uint32_t place) const { return keys_[place]; }
    std::size_t Count() const { return keys_.size(); }
    /// The place of a row; of several under one key it is any. Nothing for a key that no row has.
    std::optional<std::uint32_t> PlaceOf(Key key) const;
    std::string_view TextAt(std::uint32_t place) const;

protected:
    enum class Order {
        AsSelected,
        /// By the first line of each, then key; put so in memory, where the engine would go through its rows
        /// here and there.
        ByFirstLine,
    };

    /// `tables` are the names under which the changes are counted; `selection` gives key and text of every
    /// row.
    FoldedTexts(Database& database, const std::vector<std::string>& tables, const char* selection,
                Order order = Order::AsSelected);
    FoldedTexts(Database& database, const char* table, const char* selection, Order order = Order::AsSelected)
        : FoldedTexts(database, std::vector<std::string>{table}, selection, order)
    {
    }

    /// Makes what is looked through of what the selection gave; it is that itself where a table keeps it so.
    virtual void Shape(Key, std::string&) { }

    /// Called before all texts are read.
    virtual void BeginReading() { }
    /// Takes over the changes that were counted since the texts were read. False where all are to be read.
    virtual bool TakeChanges(long long) { return false; }
    /// Takes the texts of some keys away and puts others in, each where its order wants it. No key has two.
    void Replace(const std::set<Key>& gone, const std::map<Key, std::string>& come);

private:
    void Read();
    void SortByFirstLine();
    /// Whether a text stands behind that of a row that comes.
    bool StandsBehind(std::uint32_t place, Key key, std::string_view text) const;

    /// One after the other, each with a separator behind it.
    std::string texts_;
    /// Where each begins; one more at the end.
    std::vector<std::size_t> starts_;
    std::vector<Key> keys_;
    /// Keys with their places, in the order of the keys; made when somebody first asks for one.
    mutable std::vector<std::pair<Key, std::uint32_t>> placesByKey_;

    const Order order_;
    ChangeCount changes_;
    Key key_ = 0;
    std::string text_;
    soci::statement readTexts_;
};

/// Nickname and name of every customer with a line break between them, by name, then code. About 50 bytes for
/// a customer.
struct CustomerNames : FoldedTexts {
    explicit CustomerNames(Database& database);
};

/// The address of every customer, with its postal code, by code. About 70 bytes for a customer, read when
/// somebody first looks for an address.
struct CustomerAddresses : FoldedTexts {
    explicit CustomerAddresses(Database& database);
};

/// The name of every active animal, by name, then code. About 25 bytes for an animal.
struct AnimalNames : FoldedTexts {
    explicit AnimalNames(Database& database);
};

} // namespace kova::family
