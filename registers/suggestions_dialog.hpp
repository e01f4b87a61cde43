#pragma once

#include "family/registers/description/register.hpp"
#include "registers/desk.hpp"

#include <QDialog>

#include <vector>

class QListWidget;
class QPushButton;
class QSpinBox;

namespace kova::screens {
class RefusalLabel;
}

namespace kova::registers {

/// Rows that many shops have in a year, with a mark at each that is to be added. Those that are there already
/// are shown without one.
class SuggestionsDialog : public QDialog {
public:
    using Register = family::registers::Register;

    SuggestionsDialog(const Register& of, const Desk& desk, QWidget* parent);

    /// How many rows were added.
    int Added() const { return added_; }

private:
    void Fill();
    void Add();
    std::vector<family::registers::Texts> Marked() const;
    void OfferAdding();

    const Register& register_;
    const Desk& desk_;
    QSpinBox* year_;
    QListWidget* list_;
    screens::RefusalLabel* refusal_;
    QPushButton* add_;
    std::vector<family::registers::Suggestion> suggestions_;
    int added_ = 0;
};

} // namespace kova::registers
