#include "toolkits/common/boxes/edit_core.hpp"

#include <algorithm>
#include <utility>

namespace kova::toolkit {

namespace {

bool IsDigit(char32_t character) { return character >= U'0' && character <= U'9'; }

} // namespace

MaskEditCore::MaskEditCore(FormModel& form, const ControlDesign& design, std::string_view mask)
    : EditCore(form, design), mask_(ToCharacters(mask))
{
    edit_.Put(design.text.empty() ? ToText(mask_) : design.text);
}

void MaskEditCore::Entered(Entry entry)
{
    if (entry != Entry::Return)
        SelectAll();
}

bool MaskEditCore::ShowsNonsense() const
{
    return edit_.Characters().find(U'_') == std::u32string::npos && !ShowsValue();
}

void MaskEditCore::PutMasked(const Text& text) { PutText(text.empty() ? ToText(mask_) : text); }

bool MaskEditCore::FitsMask(std::u32string_view characters) const
{
    if (characters.size() != mask_.size())
        return false;
    for (std::size_t at = 0; at < mask_.size(); ++at) {
        const bool fits =
            IsBlank(at) ? IsDigit(characters[at]) || characters[at] == U'_' : characters[at] == mask_[at];
        if (!fits)
            return false;
    }
    return true;
}

std::size_t MaskEditCore::SkipSeparators(std::size_t position) const
{
    while (position < mask_.size() && !IsBlank(position))
        ++position;
    return position;
}

std::size_t MaskEditCore::FirstBlank(std::u32string_view characters) const
{
    return std::min(characters.find(U'_'), characters.size());
}

std::u32string MaskEditCore::Editable(std::size_t& caret) const
{
    if (!FitsMask(edit_.Characters())) {
        caret = 0;
        return mask_;
    }
    std::u32string characters = edit_.Characters();
    for (std::size_t at = edit_.First(); at < edit_.Last(); ++at)
        characters[at] = mask_[at];
    caret = edit_.HasSelection() ? edit_.First() : edit_.Selection().caret;
    return characters;
}

void MaskEditCore::Change(std::u32string characters, std::size_t caret)
{
    const bool changed = characters != edit_.Characters();
    edit_.Put(std::move(characters), caret);
    Tell(changed ? Aspect::Content : Aspect::Selection);
    if (changed)
        Edited();
}

void MaskEditCore::Type(char32_t character)
{
    if (!IsDigit(character))
        return;
    std::size_t caret = 0;
    std::u32string characters = Editable(caret);
    std::size_t position = SkipSeparators(std::min(caret, FirstBlank(characters)));
    if (position == mask_.size()) {
        characters = mask_;
        position = SkipSeparators(0);
    }
    characters[position] = character;
    Change(std::move(characters), SkipSeparators(position + 1));
}

void MaskEditCore::Erase(bool forward)
{
    std::size_t caret = 0;
    std::u32string characters = Editable(caret);
    if (characters == edit_.Characters() && !edit_.HasSelection()) {
        if (forward)
            caret = SkipSeparators(caret);
        else
            while (caret > 0 && !IsBlank(--caret)) { }
        if (caret == mask_.size() || !IsBlank(caret))
            return;
        characters[caret] = U'_';
    }
    Change(std::move(characters), caret);
}

void MaskEditCore::Replace(const Text& text)
{
    const std::u32string wanted = ToCharacters(text);
    if (FitsMask(wanted))
        return Change(wanted, SkipSeparators(FirstBlank(wanted)));
    std::u32string characters = mask_;
    std::size_t position = 0;
    for (const char32_t character : wanted) {
        position = SkipSeparators(position);
        if (IsDigit(character) && position < mask_.size())
            characters[position++] = character;
    }
    Change(std::move(characters), SkipSeparators(position));
}

} // namespace kova::toolkit
