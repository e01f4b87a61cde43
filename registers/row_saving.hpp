#pragma once

#include "family/registers/description/register.hpp"
#include "registers/desk.hpp"

#include <functional>
#include <span>

class QWidget;

namespace kova::registers {

class RecordForm;

/// Saves what stands in a form, after asking what wants to be asked.
class RowSaving {
public:
    using Register = family::registers::Register;

    /// Asks and warns over that window.
    RowSaving(const Register& of, const Desk& desk, RecordForm& form, QWidget& over);

    /// Whether it was saved. What the database reports is told.
    bool Save();

    /// Told after it was saved.
    std::function<void(const family::registers::SaveAnswer&)> onSaved = [](const auto&) {};
    /// Something in the form is refused, and says so there.
    std::function<void()> onRefused = [] {};
    /// The user wants to see that row in the place of what he has typed.
    std::function<void(family::Key)> onOpen = [](family::Key) {};

private:
    bool MayBeSaved();
    /// Where the row may be there already: asks.
    bool IsNoDouble();
    void ShowAnswer(const family::registers::SaveAnswer& answer);
    void Refuse(std::span<const family::registers::RefusedField> refused);
    family::registers::SaveAnswer Checked() const;

    const Register& register_;
    const Desk& desk_;
    RecordForm& form_;
    QWidget& over_;
};

} // namespace kova::registers
