#pragma once

#include "toolkits/common/form.hpp"
#include "toolkits/qt/form.hpp"
#include "toolkits/qt/screen/toolkit.hpp"
#include "toolkits/qt/widget_view.hpp"

#include <gtest/gtest.h>

#include <QImage>
#include <QWidget>

#include <vector>

/// What the tests of the screen toolkit share: a toolkit with a frozen clock, designs, keys and mouse.
namespace kova::qt::test {

class FrozenClock : public Clock {
public:
    DateTime Now() const override { return {{2026, 3, 18}, {9, 30, 0}}; }
    Double Timer() const override { return 34200; }
};

ControlDesign Design(WidgetKind kind, const char* name, Twips left, Twips top, Twips width, Twips height);
FormDesign Form(std::vector<ControlDesign> controls);

class QtTest : public ::testing::Test {
protected:
    FormRef Show(std::vector<ControlDesign> controls);

    FrozenClock clock_;
    QtToolkit toolkit_{clock_};
};

/// Hears of the keys that nothing in it takes.
class Surroundings : public QWidget {
public:
    std::vector<int> keys;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

void Settle();
void Press(QWidget* target, int key, const QString& text = QString(),
           Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void Type(QWidget* target, const QString& text);
void ClickAt(QWidget* target, const QPoint& place);
void MoveMouse(QWidget* target, const QPoint& place);

/// The model behind a contract's widget, and the Qt widget of its view.
toolkit::WidgetCore& CoreOf(Widget& widget);
QWidget* WindowOf(Widget& widget);
QWidget* FocusWindowOf(Widget& widget);
QImage Picture(QWidget* widget);
/// How much a square picture differs from itself with rows for columns, in steps of one colour.
int MostDifferenceTurned(const QImage& square);

} // namespace kova::qt::test
