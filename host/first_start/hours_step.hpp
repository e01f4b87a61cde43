#pragma once

#include "host/first_start/new_shop_step.hpp"

#include <array>

class QCheckBox;
class QLineEdit;

namespace kova::screens {
class RefusalLabel;
}

namespace kova::host {

/// On which days of the week the shop is open, and from when to when.
class HoursStep : public NewShopStep {
public:
    explicit HoursStep(QWidget* parent);

    bool Accepts() override;
    void Fill(family::NewShop& shop) const override;

private:
    struct Day {
        QCheckBox* isOpen = nullptr;
        QLineEdit *from = nullptr, *to = nullptr;
    };

    /// Sunday comes first.
    std::array<Day, 7> days_;
    screens::RefusalLabel* refusal_;
};

} // namespace kova::host
