#include "family/presentation/dimming_layer.hpp"

#include <QEvent>
#include <QPainter>

namespace kova::family {

namespace {

constexpr int FullShade = 110;
constexpr int FadeMilliseconds = 120;

} // namespace

DimmingLayer::DimmingLayer(QWidget& window) : QWidget(&window)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    window.installEventFilter(this);
    fade_.setStartValue(0);
    fade_.setEndValue(FullShade);
    fade_.setDuration(FadeMilliseconds);
    connect(&fade_, &QVariantAnimation::valueChanged, this, [this] { update(); });
    resize(window.size());
    raise();
    show();
    fade_.start();
}

DimmingLayer* DimmingLayer::Of(QWidget& window)
{
    for (QObject* child : window.children()) {
        if (auto* layer = dynamic_cast<DimmingLayer*>(child))
            return layer;
    }
    return nullptr;
}

void DimmingLayer::Apply(QWidget& window)
{
    if (DimmingLayer* layer = Of(window))
        layer->raise();
    else
        new DimmingLayer(window);
}

void DimmingLayer::Remove(QWidget& window) { delete Of(window); }

bool DimmingLayer::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        resize(parentWidget()->size());
    else if (event->type() == QEvent::ChildAdded)
        raise();
    return QWidget::eventFilter(watched, event);
}

void DimmingLayer::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), QColor(0, 0, 0, fade_.currentValue().toInt()));
}

} // namespace kova::family
