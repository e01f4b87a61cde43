#include "host/first_paint.hpp"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>

#include <iostream>

namespace kova::host {

namespace {

/// Ends a loop once anything in the window has been painted. All that waits to be painted is painted in
/// one go, so the end comes with the next event.
class PaintingWatch : public QObject {
public:
    PaintingWatch(const QWidget& window, QEventLoop& loop) : window_(window), loop_(loop)
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && object->isWidgetType()
            && static_cast<QWidget*>(object)->window() == &window_)
            QTimer::singleShot(0, &loop_, &QEventLoop::quit);
        return false;
    }

private:
    const QWidget& window_;
    QEventLoop& loop_;
};

} // namespace

void AwaitFirstPaint(QWidget& window)
{
    QEventLoop loop;
    const PaintingWatch watch(window, loop);
    window.update();
    loop.exec();
    std::cout << "desenhado" << std::endl;
}

} // namespace kova::host
