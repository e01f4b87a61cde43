#include "toolkits/common/boxes/edit_core.hpp"

#include <algorithm>

namespace kova::toolkit {

std::size_t FreeEditCore::MostCharacters() const
{
    return static_cast<std::size_t>(std::max(Design().maxLength, 0));
}

bool FreeEditCore::HasRoom() const
{
    const std::size_t limit = MostCharacters();
    const std::size_t kept = edit_.Characters().size() - (edit_.Last() - edit_.First());
    return limit == 0 || kept < limit;
}

bool FreeEditCore::IsStillOpen() const { return !IsGone() && state_.enabled && AllowsTyping(); }

void FreeEditCore::Type(char32_t character)
{
    if (!Admits(character) || !IsStillOpen() || !HasRoom())
        return;
    edit_.Insert(character);
    Tell(Aspect::Content);
    Edited();
}

void FreeEditCore::Erase(bool forward)
{
    if (!AdmitsErasing(forward) || !IsStillOpen() || !edit_.Erase(forward))
        return;
    Tell(Aspect::Content);
    Edited();
}

void FreeEditCore::Replace(const Text& text)
{
    const std::u32string before = edit_.Characters();
    const std::u32string after = ToCharacters(text);
    const std::size_t shorter = std::min(before.size(), after.size());
    std::size_t prefix = 0;
    while (prefix < shorter && before[prefix] == after[prefix])
        ++prefix;
    std::size_t suffix = 0;
    while (suffix < shorter - prefix
           && before[before.size() - 1 - suffix] == after[after.size() - 1 - suffix])
        ++suffix;

    edit_.Select(prefix, before.size() - suffix);
    if (after.size() == prefix + suffix && edit_.HasSelection())
        Erase(false);
    for (std::size_t at = prefix; at < after.size() - suffix && IsStillOpen() && HasRoom(); ++at)
        Type(after[at]);
}

} // namespace kova::toolkit
