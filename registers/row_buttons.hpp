#pragma once

#include "family/registers/description/register.hpp"
#include "family/users/user_rights.hpp"
#include "registers/record_actions.hpp"
#include "registers/record_form.hpp"

#include <QWidget>

#include <functional>

class QPushButton;

namespace kova::registers {

class MoreButton;

/// The buttons of a register's screen, each shut where it has nothing to do or the user no right, with the
/// reason. Those for the row in the form stand side by side, those that add rows are for another place.
class RowButtons : public QWidget {
public:
    using Register = family::registers::Register;

    /// Of `actions` it offers those of the register.
    RowButtons(const Register& of, const RecordForm& form, const RecordActions& actions, QWidget* parent);

    /// To be told when something was typed, shown or saved.
    void Follow();
    void LookAtRights(const family::DeniedRights& denied);
    /// Why nothing may be written here, and no row added; empty where that may be.
    QString WhyNotWritten() const;
    QString WhyNothingNew() const;

    QPushButton& New() { return *new_; }
    /// Null where there is nothing to suggest.
    QPushButton* Suggest() { return suggest_; }

    std::function<void()> onNew = [] {};
    std::function<void()> onSuggest = [] {};
    std::function<void()> onSave = [] {};
    std::function<void()> onDiscard = [] {};
    std::function<void()> onRemove = [] {};
    /// What the user has picked behind "Mais...".
    std::function<void(const RecordAction&)> onPicked = [](const RecordAction&) {};

private:
    void LayOut();
    void Connect();

    const Register& register_;
    const RecordForm& form_;
    QPushButton *new_, *save_, *discard_, *remove_;
    MoreButton* more_;
    QPushButton* suggest_ = nullptr;
    family::DeniedRights denied_;
};

} // namespace kova::registers
