#include "family/users/user_names.hpp"

#include "agenda/contracts/text.hpp"
#include "agenda/contracts/utf8.hpp"
#include "family/business/clean_text.hpp"
#include "family/data/engine/fold_text.hpp"

#include <algorithm>
#include <iterator>

namespace kova::family {

namespace {

struct Characters {
    char32_t first, last;
};

/// Those of no width, those that turn the direction of others, and fillers that look like a blank.
constexpr Characters Unseen[] = {
    {0xAD, 0xAD},     {0x34F, 0x34F},   {0x61C, 0x61C},   {0x115F, 0x1160},
    {0x17B4, 0x17B5}, {0x180B, 0x180F}, {0x200B, 0x200F}, {0x202A, 0x202E},
    {0x2060, 0x206F}, {0x2800, 0x2800}, {0x3164, 0x3164}, {0xFE00, 0xFE0F},
    {0xFEFF, 0xFEFF}, {0xFFA0, 0xFFA0}, {0xFFF0, 0xFFFB}, {0xE0000, 0xE0FFF},
};

bool IsUnseen(char32_t character)
{
    return std::ranges::any_of(Unseen, [character](const Characters& range) {
        return range.first <= character && character <= range.last;
    });
}

} // namespace

std::string FoldUserName(std::string_view name)
{
    std::string folded = FoldText(CleanText(name));
    const auto both = [](char one, char next) { return one == ' ' && next == ' '; };
    folded.erase(std::unique(folded.begin(), folded.end(), both), folded.end());
    return folded;
}

bool HasUnseenCharacters(std::string_view name)
{
    for (std::size_t at = 0; at < name.size();) {
        const std::size_t length = utf8::SequenceLength(name, at);
        if (IsUnseen(utf8::Decode(name, at, length)))
            return true;
        at += length;
    }
    return false;
}

std::string ObjectionToUserName(const std::string& name)
{
    if (name.empty())
        return "Informe o nome.";
    if (Left(name, WidthOfUserName) != name)
        return "O nome pode ter até " + std::to_string(WidthOfUserName) + " caracteres.";
    if (HasUnseenCharacters(name))
        return "O nome só pode ter caracteres que se veem.";
    return {};
}

} // namespace kova::family
