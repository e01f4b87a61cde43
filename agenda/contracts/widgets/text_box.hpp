#pragma once

#include "agenda/contracts/widgets/widget.hpp"

namespace kova {

/// A single-line text box. By design it may be locked: it then shows its value, takes the focus and
/// allows copying, but no typing; code still writes it.
class KVTextBox : public Widget {
public:
    /// The content. Writes raise no event and are not cut; typing stops at the design's limit of
    /// characters.
    virtual kova::Text Text() const = 0;
    virtual void Text(const kova::Text&) = 0;
    virtual bool Locked() const = 0;
    /// Characters that typing allows; 0 is no limit.
    virtual int MaxLength() const = 0;

    virtual void OnLostFocus(Handler) = 0;
};

} // namespace kova
