#include "host/sign_in/idle_watch.hpp"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

namespace kova::host {

namespace {

bool IsTouch(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TabletPress: return true;
    default: return false;
    }
}

} // namespace

IdleWatch::IdleWatch(QObject* parent) : QObject(parent), timer_(new QTimer(this))
{
    timer_->setSingleShot(true);
    connect(timer_, &QTimer::timeout, this, [this] { onIdle(); });
    QCoreApplication::instance()->installEventFilter(this);
}

void IdleWatch::SetPatience(std::chrono::milliseconds patience)
{
    patience_ = patience;
    Begin();
}

void IdleWatch::Begin()
{
    if (patience_.count() > 0)
        timer_->start(patience_);
    else
        timer_->stop();
}

// What the program sends itself, such as the moves that tell a list where the mouse rests, is nobody's hand.
bool IdleWatch::eventFilter(QObject* object, QEvent* event)
{
    if (patience_.count() > 0 && object->isWindowType() && IsTouch(event->type()))
        Begin();
    return false;
}

} // namespace kova::host
