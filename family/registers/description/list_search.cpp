#include "family/registers/description/list_search.hpp"

#include "family/data/selections/register_texts.hpp"

#include <algorithm>

namespace kova::family::registers {

ListSearch::ListSearch(std::string_view typed) : text_(typed)
{
    if (text_.IsEmpty())
        return;
    parts_.push_back(text_.folded);
    if (std::string plain = WithoutNumberMarks(text_.folded); plain != text_.folded)
        parts_.push_back(std::move(plain));
}

bool ListSearch::IsIn(std::string_view folded) const
{
    return IsEmpty() || std::ranges::any_of(parts_, [&](const std::string& part) {
               return folded.find(part) != std::string_view::npos;
           });
}

} // namespace kova::family::registers
