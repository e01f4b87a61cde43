#include "host/first_paint.hpp"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>

#include <iostream>

namespace kova::host {

namespace {

/// Calls back once anything in the window has been painted. All that waits to be painted is painted in one
/// go, so the call comes with the next event.
class PaintingWatch : public QObject {
public:
    /// `context` receives the call; where it goes before, there is none.
    PaintingWatch(const QWidget& window, QObject& context, std::function<void()> callback)
        : QObject(&context), window_(window), context_(context), callback_(std::move(callback))
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && object->isWidgetType()
            && static_cast<QWidget*>(object)->window() == &window_) {
            QCoreApplication::instance()->removeEventFilter(this);
            QTimer::singleShot(0, &context_, std::move(callback_));
            deleteLater();
        }
        return false;
    }

private:
    const QWidget& window_;
    QObject& context_;
    std::function<void()> callback_;
};

void AfterFirstPaint(QWidget& window, QObject& context, std::function<void()> callback)
{
    new PaintingWatch(window, context, std::move(callback));
    window.update();
}

} // namespace

void AwaitFirstPaint(QWidget& window)
{
    QEventLoop loop;
    AfterFirstPaint(window, loop, [&] { loop.quit(); });
    loop.exec();
    std::cout << "desenhado" << std::endl;
}

void AfterFirstPaint(QWidget& window, std::function<void()> callback)
{
    AfterFirstPaint(window, window, std::move(callback));
}

} // namespace kova::host
