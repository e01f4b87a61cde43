#pragma once

#include "family/data/engine/database.hpp"
#include "family/data/rows/rows.hpp"

#include <cstdint>
#include <string_view>
#include <vector>

namespace kova::family {

/// The folded names of every customer in memory, by name, then code. About 50 bytes for a customer; kept
/// with the connection, read again when the database has counted a change. Use it through Database::With.
class CustomerNames : public KeptStatement {
public:
    explicit CustomerNames(Database& database);

    /// Reads the names where they are not those of the database any more.
    void Refresh();

    /// Places, from 0 in the order of name and code, of the customers with the part in nickname or name; an
    /// empty part is in all. A part does not run from one of the two into the other.
    std::vector<std::uint32_t> PlacesWith(std::string_view part) const;

    /// Adds the place of a customer; none where there is no such customer.
    void AddPlaceOf(Key code, std::vector<std::uint32_t>& places) const;

    Key CodeAt(std::uint32_t place) const { return codes_[place]; }
    /// Nickname and name with a line break between them.
    std::string_view NamesAt(std::uint32_t place) const;

private:
    void Read();

    /// One after the other, each with a separator behind it.
    std::string names_;
    /// Where each begins; one more at the end.
    std::vector<std::size_t> starts_;
    std::vector<Key> codes_;
    long long readAt_ = -1;

    long long changes_ = 0;
    soci::statement countChanges_;
    Key code_ = 0;
    std::string name_;
    soci::statement readNames_;
};

} // namespace kova::family
