#pragma once

#include "family/users/user_rights.hpp"
#include "registers/desk.hpp"
#include "registers/field_editor.hpp"

#include <QWidget>

#include <memory>
#include <span>
#include <vector>

namespace kova::screens {
class FieldFrame;
}

namespace kova::registers {

/// The fields of one row, as the user types them, beside what they were when they were shown.
class RecordForm : public QWidget {
public:
    using Register = family::registers::Register;
    using Texts = family::registers::Texts;

    RecordForm(const Register& of, const Desk& desk, QWidget* parent);

    /// A stored row, or a new one with the key 0.
    void Show(family::Key key, const Texts& texts);
    /// A row that was shown as `before`, with what was typed into it since.
    void ShowChanged(family::Key key, const Texts& before, const Texts& typed);
    family::Key Key() const { return key_; }
    /// What was shown, and what stands there now; a field that the user has not touched has the same in both.
    const Texts& Before() const { return before_; }
    Texts Typed() const;
    /// Where names of other rows were typed that stand for one only, those rows are chosen.
    void SettleAll();
    bool IsChanged() const { return Typed() != before_; }
    /// Tells below each refused field why, and takes the keyboard to the first; none takes away what was
    /// told.
    void Refuse(std::span<const family::registers::RefusedField> refused);
    void FocusFirst();
    /// Of whoever lacks those rights: what he may not change is only to be read, and prices are not there.
    void LookAtRights(const family::DeniedRights& denied);

    std::function<void()> onEdited = [] {};

private:
    void AddField(std::size_t field, const QString& label);
    /// A reference that is left becomes the row that was meant.
    void Settle(std::size_t field);
    /// A field that is left shows what was typed in the usual way, or why it cannot stand.
    void Tidy(std::size_t field);
    bool eventFilter(QObject* watched, QEvent* event) override;
    screens::FieldFrame& FrameOf(std::size_t field) { return *frames_[field]; }

    const Register& register_;
    const Desk& desk_;
    family::Key key_ = 0;
    Texts before_;
    std::vector<std::unique_ptr<FieldEditor>> editors_;
    std::vector<screens::FieldFrame*> frames_;
    /// Which of the fields the user has touched since they were shown.
    std::vector<bool> touched_;
};

} // namespace kova::registers
