#include "family/data/engine/search_text.hpp"

#include "agenda/contracts/text.hpp"
#include "family/data/engine/fold_text.hpp"

#include <charconv>

namespace kova::family {

SearchText::SearchText(std::string_view typed)
{
    const std::string text = Trim(typed);
    folded = FoldText(text);
    pattern = ContainsPattern(folded);
    const std::string found = DigitsOf(text);
    if (found.empty())
        return;
    digits = found;
    long long number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error == std::errc() && stop == end)
        code = number;
}

} // namespace kova::family
