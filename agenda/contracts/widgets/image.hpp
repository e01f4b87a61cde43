#pragma once

#include "agenda/contracts/widgets/widget.hpp"

namespace kova {

/// A picture by its name in the toolkit's store; "" is none.
struct Picture {
    Text name;

    friend bool operator==(const Picture&, const Picture&) = default;
};

/// A store of one picture on the form.
class Image : public Widget {
public:
    virtual kova::Picture Picture() const = 0;
};

} // namespace kova
