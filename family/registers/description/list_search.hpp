#pragma once

#include "family/data/engine/search_text.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace kova::family::registers {

/// What somebody types to find rows of a list, as it is looked for in folded texts.
class ListSearch {
public:
    explicit ListSearch(std::string_view typed);

    bool IsEmpty() const { return text_.IsEmpty(); }
    /// The folded text; where it holds a digit also without the punctuation of numbers.
    const std::vector<std::string>& Parts() const { return parts_; }
    /// The code that was typed; Null where it is none.
    const Nullable<long long>& Code() const { return text_.code; }
    /// Whether the folded text holds one of the parts.
    bool IsIn(std::string_view folded) const;

private:
    SearchText text_;
    std::vector<std::string> parts_;
};

} // namespace kova::family::registers
