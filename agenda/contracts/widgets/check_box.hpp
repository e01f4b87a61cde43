#pragma once

#include "agenda/contracts/widgets/widget.hpp"

namespace kova {

class CheckBox : public Widget {
public:
    virtual Text Caption() const = 0;
    /// 0 clear, 1 marked, 2 greyed; any other value is failure 380. A write raises Click where it
    /// changes the value.
    virtual Integer Value() const = 0;
    virtual void Value(Integer) = 0;

    /// The user toggled the box, or a write changed it.
    virtual void OnClick(Handler) = 0;
};

} // namespace kova
