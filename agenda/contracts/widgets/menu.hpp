#pragma once

#include "agenda/contracts/widgets/widget.hpp"

namespace kova {

/// A menu entry, or the hidden parent of entries that Form::PopupMenu shows. The caption "-" is a rule
/// between entries.
class Menu : public Widget {
public:
    virtual Text Caption() const = 0;
    virtual void Caption(const Text&) = 0;

    /// The user chose the entry. Raised inside Form::PopupMenu.
    virtual void OnClick(Handler) = 0;
};

} // namespace kova
