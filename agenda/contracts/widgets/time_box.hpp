#pragma once

#include "agenda/contracts/widgets/widget.hpp"

namespace kova {

/// A time box with the mask "__:__".
class KVTime : public Widget {
public:
    /// "hh:mm", or the mask with the digits typed so far; "__:__" is empty, and writing "" gives it.
    /// A write raises no event and is shown as it stands.
    virtual kova::Text Text() const = 0;
    virtual void Text(const kova::Text&) = 0;

    virtual void OnLostFocus(Handler) = 0;
};

} // namespace kova
