#pragma once

#include "agenda/contracts/widgets/widget.hpp"

#include <functional>

namespace kova {

/// One of an indexed group of which at most one is set.
class OptionButton : public Widget {
public:
    virtual Text Caption() const = 0;
    virtual void Caption(const Text&) = 0;
    /// Writing true sets this one, clears its siblings and raises Click, also where it was set already.
    /// Writing false clears it and raises nothing.
    virtual bool Value() const = 0;
    virtual void Value(bool) = 0;

    /// The user chose this option, or true was written; with the index of the group.
    virtual void OnClick(std::function<void(Integer index)>) = 0;
};

} // namespace kova
