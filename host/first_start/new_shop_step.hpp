#pragma once

#include <QWidget>

namespace kova::family {
struct NewShop;
}

namespace kova::host {

/// One page of what a new shop is asked about.
class NewShopStep : public QWidget {
public:
    using QWidget::QWidget;

    /// Marks what cannot stand and leads to the first of it. False where there is any.
    virtual bool Accepts() = 0;
    /// Writes what was accepted into its part of the shop.
    virtual void Fill(family::NewShop& shop) const = 0;
};

} // namespace kova::host
