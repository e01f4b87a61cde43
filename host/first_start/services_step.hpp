#pragma once

#include "host/first_start/new_shop_step.hpp"

class QTableWidget;

namespace kova::screens {
class RefusalLabel;
}

namespace kova::host {

/// Which of the usual services the shop begins with: each may be left out, renamed, and given its own
/// duration and price.
class ServicesStep : public NewShopStep {
public:
    explicit ServicesStep(QWidget* parent);

    bool Accepts() override;
    void Fill(family::NewShop& shop) const override;

private:
    void AddRows();
    bool IsChosen(int row) const;
    QString Cell(int row, int column) const;
    /// "" where the row can stand.
    QString WhatIsWrongIn(int row, int& column) const;

    QTableWidget* table_;
    screens::RefusalLabel* refusal_;
};

} // namespace kova::host
