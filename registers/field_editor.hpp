#pragma once

#include "family/registers/description/register.hpp"
#include "registers/desk.hpp"

#include <QString>
#include <QWidget>

#include <functional>
#include <memory>

namespace kova::registers {

/// Where one field is typed, whatever kind it is of. It takes and gives the text that the register reads.
class FieldEditor {
public:
    virtual ~FieldEditor() = default;

    virtual QWidget& Widget() = 0;
    virtual void Show(const std::string& text) = 0;
    virtual std::string Text() const = 0;
    /// Shows what stands there and lets nobody change it.
    virtual void SetReadOnly(bool isReadOnly) { Widget().setEnabled(!isReadOnly); }
    /// Chooses what a typed part of a name stands for, where that is one row only. Answers, in lower case
    /// and with a full stop, why it stands for none; "" for an editor that takes what is typed.
    virtual std::string Settle() { return {}; }

    /// What the user has typed or chosen, not what was shown.
    std::function<void()> onEdited = [] {};

protected:
    FieldEditor() = default;
    FieldEditor(const FieldEditor&) = delete;
    FieldEditor& operator=(const FieldEditor&) = delete;
};

/// What can be chosen in the field now.
using AskOffers = std::function<std::vector<family::registers::Offer>()>;

/// The editor for that field. Its widget belongs to whoever puts it somewhere. `offers` is asked each time
/// that a list is opened.
std::unique_ptr<FieldEditor> MakeEditor(const family::registers::FieldInfo& field, AskOffers offers,
                                        const Desk& desk);

} // namespace kova::registers
