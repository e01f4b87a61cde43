#pragma once

#include "family/data/engine/key.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace kova::family {

/// Codes from `first` to `last`.
struct CodeRange {
    Key first = 0, last = 0;

    bool operator==(const CodeRange&) const = default;
};

/// Codes in ascending order as a short text: "3-7,12".
std::string RangesOf(const std::vector<Key>& codes);

/// What such a text names; what cannot be read of it names nothing.
std::vector<CodeRange> ReadRanges(std::string_view text);

} // namespace kova::family
