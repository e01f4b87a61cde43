#include "toolkits/qt/boxes/line_edit.hpp"

#include "toolkits/qt/burial.hpp"
#include "toolkits/qt/look/theme.hpp"
#include "toolkits/qt/look/tool_tip.hpp"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QToolTip>

#include <utility>

namespace kova::qt {

LineEdit::LineEdit(QWidget* parent) : QLineEdit(parent)
{
    setFrame(false);
    setAttribute(Qt::WA_MacShowFocusRect, false);
    QPalette clear = palette();
    clear.setColor(QPalette::Base, Qt::transparent);
    setPalette(clear);
    setDragEnabled(false);
    setAcceptDrops(false);
}

bool LineEdit::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && ShowsCutText()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), ToolTipOf(text().toStdString()),
                           this);
        return true;
    }
    return QLineEdit::event(event);
}

// A text that does not fit is read in a tool tip, where the field has none of its own.
bool LineEdit::ShowsCutText() const
{
    constexpr int margins = 4;
    const bool hasTip = !toolTip().isEmpty() || (parentWidget() && !parentWidget()->toolTip().isEmpty());
    return !hasTip && fontMetrics().horizontalAdvance(text()) > width() - margins;
}

void LineEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Paste) && pasteText)
        return Paste();
    if (event->matches(QKeySequence::Cut) && eraseSelection)
        return Cut();
    if (filterKey && filterKey(*event))
        return;
    QLineEdit::keyPressEvent(event);
}

void LineEdit::focusInEvent(QFocusEvent* event)
{
    isEntered_ = keepsAtFirstPress_ && event->reason() == Qt::MouseFocusReason;
    QLineEdit::focusInEvent(event);
}

void LineEdit::EnterByPress()
{
    setFocus(Qt::MouseFocusReason);
    isEntered_ = false;
}

void LineEdit::mousePressEvent(QMouseEvent* event)
{
    isFirstPress_ = std::exchange(isEntered_, false) && event->button() == Qt::LeftButton;
    if (!isFirstPress_)
        QLineEdit::mousePressEvent(event);
}

void LineEdit::mouseMoveEvent(QMouseEvent* event)
{
    if (!isFirstPress_)
        QLineEdit::mouseMoveEvent(event);
}

void LineEdit::mouseReleaseEvent(QMouseEvent* event)
{
    if (!std::exchange(isFirstPress_, false))
        QLineEdit::mouseReleaseEvent(event);
}

void LineEdit::Cut()
{
    if (isReadOnly() || !hasSelectedText())
        return;
    if (!eraseSelection)
        return cut();
    copy();
    eraseSelection();
}

void LineEdit::Paste()
{
    if (isReadOnly())
        return;
    if (pasteText)
        pasteText(QGuiApplication::clipboard()->text());
    else
        paste();
}

void LineEdit::contextMenuEvent(QContextMenuEvent* event)
{
    const bool editable = !isReadOnly() && isEnabled();
    auto* menu = new QMenu(this);
    connect(menu, &QMenu::aboutToHide, menu, [menu] { Bury(*menu); });
    const auto add = [&](const char* text, bool enabled, auto action) {
        menu->addAction(QString::fromUtf8(text), this, action)->setEnabled(enabled);
    };
    const bool undoable = canUndo ? canUndo() : isUndoAvailable();
    add("Desfazer", editable && undoable, [this] { undoEdit ? undoEdit() : undo(); });
    menu->addSeparator();
    add("Recortar", editable && hasSelectedText(), [this] { Cut(); });
    add("Copiar", hasSelectedText(), [this] { copy(); });
    add("Colar", editable && !QGuiApplication::clipboard()->text().isEmpty(), [this] { Paste(); });
    menu->addSeparator();
    add("Selecionar tudo", !text().isEmpty(), [this] { selectAll(); });
    menu->popup(event->globalPos());
}

void LineEdit::inputMethodEvent(QInputMethodEvent* event)
{
    if (!typeText)
        return QLineEdit::inputMethodEvent(event);
    event->accept();
    const QString composed = event->commitString();
    // What is being composed is shown in its place; over a selection it would erase it behind the field's
    // back.
    if (composed.isEmpty()) {
        if (!hasSelectedText())
            QLineEdit::inputMethodEvent(event);
        return;
    }
    if (!hasSelectedText()) {
        QInputMethodEvent nothing;
        QLineEdit::inputMethodEvent(&nothing);
    }
    if (!isReadOnly())
        typeText(composed);
}

bool LineEdit::focusNextPrevChild(bool) { return false; }

} // namespace kova::qt
