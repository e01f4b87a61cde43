#include "family/data/engine/search_text.hpp"

#include "agenda/contracts/text.hpp"
#include "family/data/engine/fold_text.hpp"

#include <charconv>

namespace kova::family {

SearchText::SearchText(std::string_view typed)
{
    folded = Trim(FoldText(typed));
    pattern = ContainsPattern(folded);
    // Folded dashes and digits are plain ones: a pasted number is one too.
    const std::string found = DigitsOf(folded);
    if (found.empty())
        return;
    digits = found;
    long long number = 0;
    const char* end = folded.data() + folded.size();
    const auto [stop, error] = std::from_chars(folded.data(), end, number);
    if (error == std::errc() && stop == end)
        code = number;
}

} // namespace kova::family
