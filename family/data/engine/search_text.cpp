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
    const std::string found = DocumentOf(folded);
    if (found.empty())
        return;
    number = found;
    long long typedCode = 0;
    const char* end = folded.data() + folded.size();
    const auto [stop, error] = std::from_chars(folded.data(), end, typedCode);
    if (error == std::errc() && stop == end)
        code = typedCode;
}

} // namespace kova::family
