#pragma once

#include "agenda/contracts/widgets/widget.hpp"

namespace kova {

/// A flat button with an icon. Its tool tip is the common ToolTipText.
class KVCommandButton : public Widget {
public:
    virtual Text Caption() const = 0;
    virtual void Caption(const Text&) = 0;
    /// Parts of a balloon tool tip; the forms only blank them.
    virtual void ToolTipTitle(const Text&) = 0;
    virtual void ToolTipBody(const Text&) = 0;
    virtual void ToolTipType(Long) = 0;

    /// The user pressed the button, by mouse or key.
    virtual void OnClick(Handler) = 0;
    virtual void OnLostFocus(Handler) = 0;
};

} // namespace kova
