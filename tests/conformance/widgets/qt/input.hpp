#pragma once

#include "agenda/contracts/widgets.hpp"

#include <QPoint>
#include <QString>
#include <Qt>

class QWidget;

/// Keys and mouse as the display server delivers them: to a window, which finds the widget itself.
namespace kova::conformance {

/// Qt's widget of a contract's widget, and the part of it that takes the focus; null where it has none.
QWidget* WindowOf(Widget& widget);
QWidget* FocusWindowOf(Widget& widget);
QWidget* WindowOf(Form& form);

void ClickOn(QWidget* target, const QPoint& place);
void ClickOn(QWidget* target);
void MoveOver(QWidget* target, const QPoint& place);
void DragOver(QWidget* target, const QPoint& from, const QPoint& to);
/// To the window that the widget lies in; the widget with the focus takes it there.
void KeyOn(QWidget* target, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void TypeOnKeys(QWidget* target, const QString& text);

} // namespace kova::conformance
