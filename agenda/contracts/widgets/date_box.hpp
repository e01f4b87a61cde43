#pragma once

#include "agenda/contracts/widgets/widget.hpp"

namespace kova {

/// A date box with a calendar. Typing fills the mask "__/__/____" from the left; dates run from
/// 01/01/1900 to 31/12/2999.
class KVDTPicker : public Widget {
public:
    /// "dd/mm/yyyy", or the mask with the digits typed so far; "__/__/____" is empty, and writing ""
    /// gives it. A write raises no Change and is shown as it stands.
    virtual kova::Text Text() const = 0;
    virtual void Text(const kova::Text&) = 0;

    /// The user's edit made a complete text that is a valid date (typed or chosen in the calendar).
    /// A half-typed or impossible text raises none; nor does a write from code.
    virtual void OnChange(Handler) = 0;
    virtual void OnGotFocus(Handler) = 0;
    virtual void OnLostFocus(Handler) = 0;
};

} // namespace kova
