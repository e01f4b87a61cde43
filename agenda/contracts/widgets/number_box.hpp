#pragma once

#include "agenda/contracts/widgets/widget.hpp"

#include <functional>

namespace kova {

/// A box for digits.
class KVNumberBox : public Widget {
public:
    /// A write raises no event.
    virtual kova::Text Text() const = 0;
    virtual void Text(const kova::Text&) = 0;

    /// The user typed a character, given by its code; the handler may change it, and 0 drops it.
    /// Backspace comes as 8. Raised before the character enters the box and before the limit counts.
    virtual void OnKeyPress(std::function<void(Integer& character)>) = 0;
    virtual void OnLostFocus(Handler) = 0;
};

} // namespace kova
