// The combo's list: opening, walking along its rows, choosing by mouse, keys and letters.

#include "toolkits/common/boxes/combo_box.hpp"
#include "toolkits/common/boxes/plain_letters.hpp"
#include "toolkits/common/boxes/text_edit.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/toolkit.hpp"

#include <algorithm>

namespace kova::toolkit {

namespace {

constexpr Double SecondsOfAWord = 1;

} // namespace

void ComboBoxModel::ShowList(bool open)
{
    if (open_ == open)
        return;
    open_ = open;
    marked_ = open ? row_ : -1;
    Tell(Aspect::Selection);
}

void ComboBoxModel::Mark(int row)
{
    if (!open_ || row == marked_ || row < 0 || row >= static_cast<int>(rows_.size()))
        return;
    marked_ = row;
    Tell(Aspect::Selection);
}

void ComboBoxModel::Take(int row)
{
    ShowList(false);
    if (row < 0 || row >= static_cast<int>(rows_.size()))
        return;
    GetForm().NoteTyping();
    Select(row);
}

bool ComboBoxModel::UserOpensList()
{
    ByUser([this] {
        if (open_ || !FocusForPress())
            return;
        GetForm().Raise(dropDown_);
        ShowList(TakesInput() && !rows_.empty());
    });
    return open_;
}

void ComboBoxModel::UserChooses(Integer row)
{
    ByUser([this, row] { Take(row); });
}

void ComboBoxModel::UserLeavesList() { ShowList(false); }

void ComboBoxModel::UserMarks(int row)
{
    ByUser([this, row] { Mark(row); });
}

void ComboBoxModel::UserPressesKey(ComboKey key)
{
    ByUser([this, key] {
        if (open_)
            Walk(key);
        else if (key != ComboKey::Take && key != ComboKey::Leave)
            UserOpensList();
    });
}

void ComboBoxModel::Walk(ComboKey key)
{
    const int last = static_cast<int>(rows_.size()) - 1;
    const auto mark = [this, last](int row) { Mark(std::clamp(row, 0, last)); };
    switch (key) {
    case ComboKey::Open:
    case ComboKey::Leave: return ShowList(false);
    case ComboKey::Take: return Take(marked_);
    case ComboKey::Up: return mark(marked_ - 1);
    case ComboKey::Down: return mark(marked_ + 1);
    case ComboKey::PageUp: return mark(marked_ - RowsOfPage);
    case ComboKey::PageDown: return mark(marked_ + RowsOfPage);
    case ComboKey::Home: return mark(0);
    case ComboKey::End: return mark(last);
    }
}

bool ComboBoxModel::TakesKey(FormKey key)
{
    if (!open_)
        return false;
    Walk(key == FormKey::Escape ? ComboKey::Leave : ComboKey::Take);
    return true;
}

void ComboBoxModel::UserTypes(char32_t character)
{
    ByUser([this, character] {
        const Double now = GetForm().GetToolkit().Seconds();
        if (now < lastTyped_ || now - lastTyped_ > SecondsOfAWord)
            typed_.clear();
        // No word begins with a blank: the space bar opens the list.
        if (character == U' ' && typed_.empty())
            return open_ ? void() : UserPressesKey(ComboKey::Open);
        typed_ += PlainLetter(character);
        lastTyped_ = now;
        const int row = RowOf(typed_);
        if (open_)
            Mark(row);
        else if (row >= 0 && row != row_)
            Take(row);
    });
}

// One letter typed again and again goes along the rows that begin with it.
int ComboBoxModel::RowOf(const std::u32string& typed) const
{
    const int count = static_cast<int>(rows_.size());
    const int current = open_ ? marked_ : row_;
    const auto place = [&](int row) {
        return PlainLetters(rows_[static_cast<std::size_t>(row)].text).find(typed);
    };
    const bool stands = current >= 0 && place(current) == 0;
    if (stands && typed.size() > 1)
        return current;
    int inside = -1;
    for (int step = 1; step <= count; ++step) {
        const int row = stands ? (current + step) % count : step - 1;
        const std::size_t at = place(row);
        if (at == 0)
            return row;
        if (at != std::u32string::npos && inside < 0)
            inside = row;
    }
    return inside;
}

} // namespace kova::toolkit
