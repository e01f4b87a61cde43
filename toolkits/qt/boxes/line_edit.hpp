#pragma once

#include <QLineEdit>

#include <functional>

namespace kova::qt {

/// The borderless editor inside a field: its own Portuguese context menu, and keys offered to the field
/// before the editor takes them.
class LineEdit : public QLineEdit {
public:
    explicit LineEdit(QWidget* parent);

    /// The press that brings the focus leaves what is selected then; the mouse selects from the next one on.
    void KeepSelectionAtFirstPress() { keepsAtFirstPress_ = true; }
    /// Takes the focus for a press beside the text.
    void EnterByPress();

    /// Asked first about each key; true keeps it from the editor.
    std::function<bool(QKeyEvent&)> filterKey;
    /// What "Colar" and Ctrl+V do instead of inserting; empty leaves it to the editor.
    std::function<void(const QString&)> pasteText;
    /// What happens with characters that an input method has composed ("ç" by dead keys); empty leaves them
    /// to the editor.
    std::function<void(const QString&)> typeText;
    /// What "Recortar" and "Excluir" of a masked field do instead of cutting.
    std::function<void()> eraseSelection;
    std::function<void()> undoEdit;
    std::function<bool()> canUndo;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    bool ShowsCutText() const;
    void Cut();
    void Paste();

    bool keepsAtFirstPress_ = false;
    /// A press has brought the focus and has not come itself yet.
    bool isEntered_ = false;
    /// The press that brought the focus has not been let go.
    bool isFirstPress_ = false;
};

} // namespace kova::qt
