#include "bench/paint_watch.hpp"

#include <QCoreApplication>
#include <QPaintEvent>
#include <QWidget>

#include <utility>

namespace kova::bench {

void Settle()
{
    // One round lays out and asks for painting, the next one paints.
    constexpr int rounds = 2;
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

PaintWatch::PaintWatch(QWidget& window) : window_(window)
{
    QCoreApplication::instance()->installEventFilter(this);
}

PaintWatch::~PaintWatch() { QCoreApplication::instance()->removeEventFilter(this); }

QRegion PaintWatch::Take() { return std::exchange(painted_, QRegion()); }

bool PaintWatch::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::Paint || !object->isWidgetType())
        return false;
    const auto* widget = static_cast<QWidget*>(object);
    if (widget->window() == &window_) {
        const QPoint origin = widget->mapTo(&window_, QPoint());
        painted_ += static_cast<QPaintEvent*>(event)->region().translated(origin);
    }
    return false;
}

long long AreaOf(const QRegion& region)
{
    long long area = 0;
    for (const QRect& part : region)
        area += static_cast<long long>(part.width()) * part.height();
    return area;
}

} // namespace kova::bench
