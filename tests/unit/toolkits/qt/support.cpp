#include "tests/unit/toolkits/qt/support.hpp"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <cstdlib>

namespace kova::qt::test {

ControlDesign Design(WidgetKind kind, const char* name, Twips left, Twips top, Twips width, Twips height)
{
    ControlDesign design;
    design.kind = kind;
    design.name = name;
    design.left = left;
    design.top = top;
    design.width = width;
    design.height = height;
    return design;
}

FormDesign Form(std::vector<ControlDesign> controls)
{
    FormDesign design;
    design.name = "frmTeste";
    design.caption = "Teste";
    design.controls = std::move(controls);
    return design;
}

FormRef QtTest::Show(std::vector<ControlDesign> controls)
{
    FormRef form = toolkit_.CreateForm(Form(std::move(controls)));
    form->Show(ShowMode::Modeless);
    Settle();
    return form;
}

void Surroundings::keyPressEvent(QKeyEvent* event) { keys.push_back(event->key()); }

void Settle()
{
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void Press(QWidget* target, int key, const QString& text, Qt::KeyboardModifiers modifiers)
{
    QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
    QCoreApplication::sendEvent(target, &down);
    QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
    QCoreApplication::sendEvent(target, &up);
}

void Type(QWidget* target, const QString& text)
{
    for (const QChar character : text)
        Press(target, character.toUpper().unicode(), character);
}

void ClickAt(QWidget* target, const QPoint& place)
{
    const QPointF screen = target->mapToGlobal(QPointF(place));
    QMouseEvent down(QEvent::MouseButtonPress, place, screen, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &down);
    QMouseEvent up(QEvent::MouseButtonRelease, place, screen, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &up);
}

void MoveMouse(QWidget* target, const QPoint& place)
{
    QMouseEvent move(QEvent::MouseMove, place, target->mapToGlobal(QPointF(place)), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &move);
}

toolkit::WidgetCore& CoreOf(Widget& widget) { return dynamic_cast<toolkit::WidgetCore&>(widget); }

QWidget* WindowOf(Widget& widget) { return dynamic_cast<WidgetView&>(*CoreOf(widget).GetView()).Window(); }

QWidget* FocusWindowOf(Widget& widget)
{
    return dynamic_cast<WidgetView&>(*CoreOf(widget).GetView()).FocusWindow();
}

QImage Picture(QWidget* widget)
{
    QImage image(widget->size(), QImage::Format_RGB32);
    image.fill(Qt::magenta);
    widget->render(&image);
    return image;
}

int MostDifferenceTurned(const QImage& square)
{
    int most = 0;
    for (int x = 0; x < square.width(); ++x) {
        for (int y = 0; y < x; ++y) {
            const QColor here = square.pixelColor(x, y);
            const QColor there = square.pixelColor(y, x);
            most = std::max({most, std::abs(here.red() - there.red()), std::abs(here.green() - there.green()),
                             std::abs(here.blue() - there.blue())});
        }
    }
    return most;
}

} // namespace kova::qt::test
