#include "toolkits/qt/input_gate.hpp"

#include "toolkits/qt/form.hpp"

#include <QKeyEvent>
#include <QKeySequence>

namespace kova::qt {

namespace {

constexpr const char* KeepsEnterProperty = "kovaKeepsEnter";

bool IsInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
    case QEvent::Shortcut: return true;
    default: return false;
    }
}

// Characters are for the box that has the focus; so is Shift with them.
bool IsShortcut(const QKeyEvent& event)
{
    if (event.isAutoRepeat())
        return false;
    const bool isFunctionKey = event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F35;
    return isFunctionKey || event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
}

QString NameOf(const QKeyEvent& event)
{
    const int modifiers = static_cast<int>(event.modifiers() & ~Qt::KeypadModifier);
    return QKeySequence(modifiers | event.key()).toString(QKeySequence::PortableText);
}

} // namespace

void KeepEnter(QWidget& widget) { widget.setProperty(KeepsEnterProperty, true); }

FormWidget* FormAround(QWidget* widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (auto* form = dynamic_cast<FormWidget*>(widget))
            return form;
        if (widget->isWindow())
            return nullptr;
    }
    return nullptr;
}

bool InputGate::eventFilter(QObject* watched, QEvent* event)
{
    if (!IsInput(event->type()) || !watched->isWidgetType())
        return false;
    auto* target = static_cast<QWidget*>(watched);
    FormWidget* form = FormAround(target);
    if (!form)
        return false;
    // The release belongs to a press that was let through; held back, a button would stay down.
    const bool ends = event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::KeyRelease;
    if (!ends && !form->Model().Refusal().empty())
        return true;
    return event->type() == QEvent::KeyPress && TakesKey(*form, *target, *static_cast<QKeyEvent*>(event));
}

bool InputGate::TakesKey(FormWidget& form, QWidget& target, const QKeyEvent& event)
{
    using toolkit::FormKey;
    if (IsShortcut(event) && form.ForwardShortcut(NameOf(event)))
        return true;
    if (event.modifiers() & (Qt::AltModifier | Qt::MetaModifier))
        return false;
    switch (event.key()) {
    case Qt::Key_Tab:
        return form.Forward(event.modifiers() & Qt::ShiftModifier ? FormKey::BackTab : FormKey::Tab);
    case Qt::Key_Backtab: return form.Forward(FormKey::BackTab);
    case Qt::Key_Escape: return form.Forward(FormKey::Escape);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (target.property(KeepsEnterProperty).toBool())
            return false;
        return event.isAutoRepeat() || form.Forward(FormKey::Enter);
    default: return false;
    }
}

} // namespace kova::qt
