#pragma once

#include "family/data/engine/key.hpp"

#include <cstdint>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kova::family {

/// A row as it is looked for.
struct TextOfRow {
    Key key = 0;
    /// The row that it belongs to; 0 where nobody asks for it.
    Key owner = 0;
    /// Left out where only what is active is wanted.
    bool isHidden = false;
    std::string text;
};

/// Folded texts of rows in memory, in an order of their own, which are looked through for parts. Each has a
/// mark for every letter and digit that it holds: a single letter is found by the marks alone, and of longer
/// parts only the texts are read that hold all their letters.
class TextRows {
public:
    enum class Order {
        AsAdded,
        /// By the first line of each, then key.
        ByFirstLine,
        /// By the row that each belongs to, then key.
        ByOwner,
    };
    /// From 0 in the order of the texts.
    using Place = std::uint32_t;

    explicit TextRows(Order order) : order_(order) { }

    void Clear();
    /// Behind all others, until Sort puts them into their order.
    void Add(const TextOfRow& row);
    void Sort();

    /// One more where the order wants it, which all others stand in already. No key has two.
    void Insert(const TextOfRow& row);
    /// Takes the row with that key away, if there is one.
    void Remove(Key key);

    std::size_t Count() const { return rows_.size(); }
    /// Ascending places of the rows with the part in their text; an empty part is in all.
    std::vector<Place> PlacesWith(std::string_view part) const;
    /// The same of the rows with one of the parts in it.
    std::vector<Place> PlacesWithAny(std::span<const std::string> parts) const;
    /// The same with the places of some rows beside. A key that no row has adds none.
    std::vector<Place> PlacesWith(std::string_view part, const std::vector<Key>& others) const;

    Key KeyAt(Place place) const { return rows_[place].key; }
    Key OwnerAt(Place place) const { return rows_[place].owner; }
    bool IsHidden(Place place) const { return (rows_[place].marks & HiddenMark) != 0; }
    std::string_view TextAt(Place place) const { return TextOf(rows_[place]); }

    /// The place of a row; nothing for a key that no row has.
    std::optional<Place> PlaceOf(Key key) const;
    /// The places of the rows with those keys, which are ascending; in the order of the keys. One that no row
    /// has is left out.
    std::vector<Place> PlacesOf(std::span<const Key> keys) const;

private:
    struct Row {
        Key key, owner;
        std::uint64_t marks;
        std::size_t start;
        std::uint32_t length, lengthOfFirstLine;
    };
    static constexpr std::uint64_t HiddenMark = std::uint64_t{1} << 63;
    class Part;

    /// The row of a text that is put behind all others.
    Row Kept(const TextOfRow& row);
    std::string_view TextOf(const Row& row) const
    {
        return std::string_view(texts_).substr(row.start, row.length);
    }
    bool StandsBefore(const Row& one, const Row& other) const;
    /// Puts the texts behind each other as their rows stand, without what is gone.
    void Tidy();
    std::vector<std::pair<Key, Place>>& PlacesByKey() const;

    const Order order_;
    std::string texts_;
    /// Bytes of texts that are gone.
    std::size_t waste_ = 0;
    std::vector<Row> rows_;
    /// In the order of the keys; made when somebody first asks for one.
    mutable std::vector<std::pair<Key, Place>> placesByKey_;
};

} // namespace kova::family
