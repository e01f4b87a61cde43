#pragma once

#include "agenda/contracts/widgets/widget.hpp"

namespace kova {

/// A drop-down list with a number beside each row. Rows keep the order of addition. The user picks
/// rows and cannot type a text of his own.
class KVComboBox : public Widget {
public:
    /// The text on show. Writing the text of a row selects the first such row, with the Click of a
    /// write of ListIndex; any other text, "" too, stays on show with ListIndex -1 and raises no event.
    virtual kova::Text Text() const = 0;
    virtual void Text(const kova::Text&) = 0;
    /// The selected row from 0; -1 is none. Every write raises Click inside the call, also of the value
    /// it has already, and shows the row's text ("" for -1). Outside -1 to ListCount-1 is failure 380.
    virtual Integer ListIndex() const = 0;
    virtual void ListIndex(Integer) = 0;
    /// Row of the last AddItem; -1 where there was none since the last Clear.
    virtual Integer NewIndex() const = 0;
    virtual Integer ListCount() const = 0;
    /// Text of a row; "" for a row that does not exist.
    virtual kova::Text List(Integer row) const = 0;
    /// The number kept for a row, 0 until it is written. A row that does not exist is failure 381.
    virtual Long ItemData(Integer row) const = 0;
    virtual void ItemData(Integer row, Long) = 0;
    /// Appends a row; no event, no change of the selection.
    virtual void AddItem(const kova::Text&) = 0;
    /// Removes all rows; ListIndex becomes -1, the text on show "". No event.
    virtual void Clear() = 0;

    /// A row was chosen by the user (also the one already selected), or ListIndex was written.
    virtual void OnClick(Handler) = 0;
    /// The user is about to open the list; comes before the rows are shown.
    virtual void OnDropDown(Handler) = 0;
    virtual void OnLostFocus(Handler) = 0;
};

} // namespace kova
