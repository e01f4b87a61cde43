#pragma once

#include "agenda/contracts/value.hpp"

#include <vector>

namespace kova::family {

/// Whom a label is for. Every part may be empty.
struct PostalAddress {
    /// Nickname or trade name; name or company name.
    Text nickname = {};
    Text name = {};
    Text street = {};
    Text number = {};
    Text complement = {};
    Text district = {};
    Text town = {};
    Text state = {};
    /// Digits only.
    Text postalCode = {};

    /// Whether a letter would find the way: a street and a town.
    bool IsComplete() const;
};

/// A line of a label.
struct LabelLine {
    Text text = {};
    bool bold = false;

    friend bool operator==(const LabelLine&, const LabelLine&) = default;
};

/// The lines of a label from top to bottom, none of them empty: the name, which the nickname precedes where
/// it is wanted and says something else; street, number and complement; district; town and state; postal
/// code.
std::vector<LabelLine> LinesOf(const PostalAddress& address, bool withNickname);

} // namespace kova::family
