#pragma once

#include "family/data/engine/nullable.hpp"

#include <string>
#include <string_view>

namespace kova::family {

/// What somebody typed to find something, in the forms in which it is compared.
struct SearchText {
    SearchText() = default;
    /// Blanks at both ends do not count.
    explicit SearchText(std::string_view typed);

    bool IsEmpty() const { return folded.empty(); }

    std::string folded;
    /// The folded text inside a longer one; that of an empty text finds everything. Escape character '!'.
    std::string pattern = "%%";
    /// Where a whole number was typed: a comparison with Null holds for no row.
    Nullable<long long> code;
    /// The places of a document or a microchip (DocumentOf), with or without punctuation; else Null.
    Nullable<std::string> number;
};

} // namespace kova::family
