#pragma once

#include <QDialog>

class QSpinBox;

namespace kova::screens {
class RefusalLabel;
}

namespace kova::host {

class Door;

/// Asks after how many minutes without a hand at them the desks of the shop are locked. It stays where that
/// cannot be saved, and says why.
class IdleMinutesDialog : public QDialog {
public:
    IdleMinutesDialog(Door& door, QWidget* parent);

private:
    void Save();

    Door& door_;
    QSpinBox* minutes_;
    screens::RefusalLabel* failure_;
};

} // namespace kova::host
