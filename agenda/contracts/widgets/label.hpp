#pragma once

#include "agenda/contracts/widgets/widget.hpp"

namespace kova {

/// A plain text. A label of automatic size follows its caption: Width and Height are those of the
/// text as soon as the write of Caption returns.
class Label : public Widget {
public:
    virtual Text Caption() const = 0;
    virtual void Caption(const Text&) = 0;
    virtual Colour ForeColor() const = 0;
    virtual void ForeColor(Colour) = 0;
};

} // namespace kova
