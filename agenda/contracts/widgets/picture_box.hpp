#pragma once

#include "agenda/contracts/widgets/widget.hpp"

namespace kova {

/// A panel that holds other widgets.
class PictureBox : public Widget {
public:
    /// The handle by which platform services reach the panel's window.
    virtual Long Handle() const = 0;
};

} // namespace kova
