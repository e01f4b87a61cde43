#pragma once

#include "toolkits/common/boxes/edit_core.hpp"
#include "toolkits/qt/boxes/field_frame.hpp"
#include "toolkits/qt/widget_view.hpp"

#include <vector>

namespace kova::qt {

/// A box that the user types in. Text, caret and selection are the model's: keys go there, and the
/// editor shows what came of them.
class EditView : public ViewOf<toolkit::EditCore, FieldFrame> {
public:
    EditView(toolkit::EditCore& model, QWidget* parent);

    QWidget* FocusWindow() const override;

protected:
    LineEdit* Editor() const;
    void ShowContent() override;
    void ShowSelection() override;
    void ShowLook() override;
    void ShowToolTip() override;
    /// A shut box can still be pointed at: its text is selected with the mouse and copied.
    void OpenWindow(bool open) override { Shown().SetOpen(open); }

    virtual QColor Ink() const;
    /// A key that the kind takes before the text does.
    virtual bool TakesKey(const QKeyEvent&) { return false; }
    virtual void Paste(const QString& text);
    void TypeAll(const QString& text);

private:
    bool FilterKey(const QKeyEvent& event);
    bool FilterEditing(const QKeyEvent& event);
    void Undo();
    void Remember();
    void ForwardSelection();

    QPointer<LineEdit> editor_;
    bool showing_ = false;
    /// Texts before the user's last edits, for "Desfazer".
    std::vector<Text> former_;
};

} // namespace kova::qt
