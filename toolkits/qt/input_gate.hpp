#pragma once

#include <QObject>

class QKeyEvent;
class QWidget;

namespace kova::qt {

class FormWidget;

/// Stands before all forms of the process: keeps input away from forms that take none, and hands the
/// keys of the form as a whole (Tab, Enter, Escape) to its model.
class InputGate : public QObject {
public:
    explicit InputGate(QObject* parent) : QObject(parent) { }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool TakesKey(FormWidget& form, QWidget& target, const QKeyEvent& event);
};

/// Marks a widget that presses itself by Enter, such as a button inside a bar.
void KeepEnter(QWidget& widget);

/// The form that a widget lies in; null in a pop-up, a message box or a window of the host.
FormWidget* FormAround(QWidget* widget);

} // namespace kova::qt
