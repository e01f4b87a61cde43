#include "toolkits/qt/input_gate.hpp"

#include "toolkits/common/form.hpp"
#include "toolkits/common/toolkit.hpp"
#include "toolkits/qt/enter_key.hpp"
#include "toolkits/qt/form.hpp"
#include "toolkits/qt/mouse_follower.hpp"

#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QTimer>

#include <utility>

namespace kova::qt {

namespace {

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

bool IsPress(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
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

InputGate::InputGate(const toolkit::ToolkitModel& toolkit) : QObject(nullptr), toolkit_(toolkit) { }

InputGate::~InputGate() = default;

bool InputGate::eventFilter(QObject* watched, QEvent* event)
{
    if (!watched->isWidgetType())
        return false;
    auto* target = static_cast<QWidget*>(watched);
    if (event->type() == QEvent::MouseMove || event->type() == QEvent::Leave)
        FollowMouse(*target, *event);
    if (IsPress(event->type()) && EndsAPressElsewhere(*target, *static_cast<QMouseEvent*>(event)))
        return true;
    if (!IsInput(event->type()))
        return false;
    FormWidget* form = FormAround(target);
    if (!form)
        return false;
    // The release belongs to a press that was let through; held back, a button would stay down.
    const bool ends = event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::KeyRelease;
    if (!ends && !form->Model().Refusal().empty()) {
        if (event->type() == QEvent::KeyPress)
            KeepKey(*static_cast<QKeyEvent*>(event));
        if (event->type() == QEvent::InputMethod)
            KeepComposed(*static_cast<QInputMethodEvent*>(event));
        if (event->type() == QEvent::Shortcut)
            KeepMnemonic(*static_cast<QShortcutEvent*>(event), *target);
        return true;
    }
    return event->type() == QEvent::KeyPress && TakesKey(*form, *target, *static_cast<QKeyEvent*>(event));
}

// The second press of a double press at the place of a window that the first one has closed would fall
// through onto what lies beneath.
bool InputGate::EndsAPressElsewhere(const QWidget& target, const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton)
        return false;
    const QPoint place = event.globalPosition().toPoint();
    const auto milliseconds = static_cast<unsigned long>(event.timestamp());
    const bool isSoon =
        milliseconds - press_.milliseconds < static_cast<unsigned long>(QApplication::doubleClickInterval());
    const bool isThere = (place - press_.place).manhattanLength() <= QApplication::startDragDistance();
    const bool isGone = press_.isAny && (!press_.window || !press_.window->isVisible());
    if (isGone && isSoon && isThere)
        return true;
    press_ = {target.window(), place, milliseconds, true};
    return false;
}

// A grid hears of moves above itself from its own canvas. What covers it there, a row's buttons, belongs to
// it.
void InputGate::FollowMouse(QWidget& target, const QEvent& event)
{
    auto* follower = dynamic_cast<MouseFollower*>(&target);
    if (follower && event.type() == QEvent::MouseMove) {
        pointed_ = &target;
        if (FormWidget* form = FormAround(&target); form && !form->Model().Refusal().empty())
            follower->MouseIsAt(static_cast<const QMouseEvent&>(event).position());
        return;
    }
    QWidget* pointed = pointed_.data();
    auto* left = dynamic_cast<MouseFollower*>(pointed);
    if (!left)
        return;
    if (event.type() == QEvent::Leave) {
        const bool leavesWindow = target.isWindow() && target.window() == pointed->window();
        if (!leavesWindow || toolkit_.IsInsideEvent())
            return;
    } else {
        const QPointF place = pointed->mapFromGlobal(static_cast<const QMouseEvent&>(event).globalPosition());
        const bool isAbove =
            FormAround(&target) == FormAround(pointed) && QRectF(pointed->rect()).contains(place);
        if (isAbove)
            return left->MouseIsAbove(place);
        if (target.window() != pointed->window())
            return;
    }
    pointed_ = nullptr;
    left->MouseLeaves();
}

// Only for as long as a pause lasts: who types into a box or a form means that one.
void InputGate::KeepKey(const QKeyEvent& event)
{
    if (!event.isAutoRepeat())
        Keep({std::unique_ptr<QEvent>(event.clone()), nullptr});
}

void InputGate::KeepComposed(const QInputMethodEvent& event)
{
    if (event.commitString().isEmpty())
        return;
    auto composed = std::make_unique<QInputMethodEvent>();
    composed->setCommitString(event.commitString());
    Keep({std::move(composed), nullptr});
}

// Qt has found out whose it is; the key alone would not lead there again.
void InputGate::KeepMnemonic(const QShortcutEvent& event, QWidget& widget)
{
    Keep({std::unique_ptr<QEvent>(event.clone()), &widget});
}

void InputGate::Keep(KeptKey key)
{
    if (!toolkit_.IsPausing())
        return;
    if (kept_.empty())
        interruptions_ = toolkit_.Interruptions();
    kept_.push_back(std::move(key));
}

void InputGate::InputAwaited()
{
    if (!kept_.empty() && !delivering_)
        QTimer::singleShot(0, this, [this] { DeliverKeptKeys(); });
}

void InputGate::DeliverKeptKeys()
{
    if (delivering_ || toolkit_.IsPausing())
        return;
    delivering_ = true;
    auto keys = std::exchange(kept_, {});
    for (const KeptKey& key : keys) {
        const bool isMnemonic = key.event->type() == QEvent::Shortcut;
        QWidget* target = isMnemonic ? key.widget.data() : QApplication::focusWidget();
        const FormWidget* form = FormAround(target);
        if (toolkit_.Interruptions() != interruptions_ || !form || !form->Model().Refusal().empty())
            break;
        Deliver(key, *target);
    }
    delivering_ = false;
    InputAwaited();
}

void InputGate::Deliver(const KeptKey& key, QWidget& target)
{
    const QPointer<QWidget> living(&target);
    QCoreApplication::sendEvent(&target, key.event.get());
    if (!living || key.event->type() != QEvent::KeyPress)
        return;
    const auto& press = static_cast<const QKeyEvent&>(*key.event);
    QKeyEvent release(QEvent::KeyRelease, press.key(), press.modifiers(), press.text());
    QCoreApplication::sendEvent(&target, &release);
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
        if (KeepsEnter(target))
            return false;
        return event.isAutoRepeat() || form.Forward(FormKey::Enter);
    default: return false;
    }
}

} // namespace kova::qt
