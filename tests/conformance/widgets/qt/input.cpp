#include "tests/conformance/widgets/qt/input.hpp"

#include "toolkits/qt/form.hpp"
#include "toolkits/qt/handles.hpp"
#include "toolkits/qt/widget_view.hpp"

#include <QPointer>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace kova::conformance {

namespace {

qt::WidgetView* ViewOf(Widget& widget)
{
    return dynamic_cast<qt::WidgetView*>(dynamic_cast<toolkit::WidgetCore&>(widget).GetView());
}

// Null where no window is on show: nothing can be done there.
QWindow* Top(QWidget* target)
{
    QWidget* top = target ? target->window() : nullptr;
    return top && top->isVisible() ? top->windowHandle() : nullptr;
}

QPoint InWindow(QWidget* target, const QPoint& place) { return target->mapTo(target->window(), place); }

} // namespace

QWidget* WindowOf(Widget& widget) { return ViewOf(widget) ? ViewOf(widget)->Window() : nullptr; }

QWidget* FocusWindowOf(Widget& widget) { return ViewOf(widget) ? ViewOf(widget)->FocusWindow() : nullptr; }

QWidget* WindowOf(Form& form) { return qt::WidgetOfHandle(form.Handle()); }

void ClickOn(QWidget* target, const QPoint& place)
{
    if (QWindow* top = Top(target))
        QTest::mouseClick(top, Qt::LeftButton, Qt::NoModifier, InWindow(target, place));
}

void ClickOn(QWidget* target)
{
    if (target)
        ClickOn(target, target->rect().center());
}

void MoveOver(QWidget* target, const QPoint& place)
{
    if (QWindow* top = Top(target))
        QTest::mouseMove(top, InWindow(target, place));
}

void DragOver(QWidget* target, const QPoint& from, const QPoint& to)
{
    QWindow* top = Top(target);
    if (!top)
        return;
    QTest::mousePress(top, Qt::LeftButton, Qt::NoModifier, InWindow(target, from));
    QTest::mouseMove(top, InWindow(target, to));
    QTest::mouseRelease(top, Qt::LeftButton, Qt::NoModifier, InWindow(target, to));
}

void KeyOn(QWidget* target, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (QWindow* top = Top(target))
        QTest::keyClick(top, key, modifiers);
}

void TypeOnKeys(QWidget* target, const QString& text)
{
    // A key may close the window.
    const QPointer<QWidget> watched(target);
    for (const QChar character : text) {
        QWindow* top = Top(watched);
        if (!top)
            return;
        const auto key = static_cast<Qt::Key>(character.toUpper().unicode());
        QTest::sendKeyEvent(QTest::Click, top, key, QString(character), Qt::NoModifier);
    }
}

} // namespace kova::conformance
