#include "toolkits/common/boxes/edit_core.hpp"

#include "toolkits/common/form.hpp"

namespace kova::toolkit {

void EditCore::Edit(const std::function<void()>& act)
{
    ByUser([this, &act] {
        if (!AllowsTyping())
            return;
        GetForm().NoteTyping();
        act();
    });
}

void EditCore::UserTypes(char32_t character)
{
    Edit([this, character] { Type(character); });
}

void EditCore::UserErases()
{
    Edit([this] { Erase(false); });
}

void EditCore::UserErasesForward()
{
    Edit([this] { Erase(true); });
}

void EditCore::UserEdits(const Text& text)
{
    Edit([this, &text] { Replace(text); });
    ByUser([this, &text] {
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
