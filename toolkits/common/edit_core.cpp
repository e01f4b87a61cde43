#include "toolkits/common/edit_core.hpp"

namespace kova::toolkit {

void EditCore::UserTypes(char32_t character)
{
    ByUser([this, character] {
        if (AllowsTyping())
            Type(character);
    });
}

void EditCore::UserErases()
{
    ByUser([this] {
        if (AllowsTyping())
            Erase(false);
    });
}

void EditCore::UserErasesForward()
{
    ByUser([this] {
        if (AllowsTyping())
            Erase(true);
    });
}

void EditCore::UserEdits(const Text& text)
{
    ByUser([this, &text] {
        if (AllowsTyping())
            Replace(text);
        if (edit_.AsText() != text)
            Tell(Aspect::Content);
    });
}

void EditCore::UserSelects(std::size_t anchor, std::size_t caret)
{
    ByUser([this, anchor, caret] {
        const TextSelection before = edit_.Selection();
        edit_.Select(anchor, caret);
        if (edit_.Selection() != before)
            Tell(Aspect::Selection);
    });
}

void EditCore::UserSelectsAll() { UserSelects(0, edit_.Characters().size()); }

void EditCore::Entered(Entry entry)
{
    if (entry == Entry::Key)
        SelectAll();
}

void EditCore::SelectAll()
{
    edit_.Select(0, edit_.Characters().size());
    Tell(Aspect::Selection);
}

void EditCore::SelectToStart()
{
    edit_.Select(edit_.Selection().caret, 0);
    Tell(Aspect::Selection);
}

void EditCore::PutText(const Text& text)
{
    edit_.Put(text);
    // A long text that nobody is typing in shows its beginning.
    if (!HasFocus())
        edit_.Select(0, 0);
    Tell(Aspect::Content);
}

} // namespace kova::toolkit
