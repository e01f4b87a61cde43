#include "tests/conformance/widgets/qt/input.hpp"

#include "toolkits/qt/form.hpp"
#include "toolkits/qt/handles.hpp"
#include "toolkits/qt/widget_view.hpp"
#include "tools/hand/hand.hpp"

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

QPoint InWindow(QWidget* target, const QPoint& place) { return target->mapTo(target->window(), place); }

} // namespace

QWidget* WindowOf(Widget& widget) { return ViewOf(widget) ? ViewOf(widget)->Window() : nullptr; }

QWidget* FocusWindowOf(Widget& widget) { return ViewOf(widget) ? ViewOf(widget)->FocusWindow() : nullptr; }

QWidget* WindowOf(Form& form) { return qt::WidgetOfHandle(form.Handle()); }

void ClickOn(QWidget* target, const QPoint& place)
{
    if (QWindow* top = hand::WindowUnder(target))
        hand::Hand::ClickAt(*top, InWindow(target, place));
}

void ClickOn(QWidget* target)
{
    if (target)
        ClickOn(target, target->rect().center());
}

void MoveOver(QWidget* target, const QPoint& place)
{
    if (QWindow* top = hand::WindowUnder(target))
        hand::Hand::MoveAt(*top, InWindow(target, place));
}

void DragOver(QWidget* target, const QPoint& from, const QPoint& to)
{
    QWindow* top = hand::WindowUnder(target);
    if (!top)
        return;
    hand::Hand::PressAt(*top, InWindow(target, from), Qt::LeftButton);
    hand::Hand::MoveAt(*top, InWindow(target, to));
    hand::Hand::ReleaseAt(*top, InWindow(target, to), Qt::LeftButton);
}

void KeyOn(QWidget* target, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (QWindow* top = hand::WindowUnder(target))
        QTest::keyClick(top, key, modifiers);
}

void TypeOnKeys(QWidget* target, const QString& text)
{
    // A key may close the window.
    const QPointer<QWidget> watched(target);
    for (const QChar character : text) {
        QWindow* top = hand::WindowUnder(watched);
        if (!top)
            return;
        const auto key = static_cast<Qt::Key>(character.toUpper().unicode());
        QTest::sendKeyEvent(QTest::Click, top, key, QString(character), Qt::NoModifier);
    }
}

} // namespace kova::conformance
