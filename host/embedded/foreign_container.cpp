#include "host/embedded/foreign_container.hpp"

#include "system/foreign_window.hpp"

#include <QEvent>
#include <QHash>
#include <QWidget>
#include <QWindow>

#include <memory>

namespace kova::host {

namespace {

class ForeignContainer;

QHash<Long, ForeignContainer*>& Containers()
{
    static QHash<Long, ForeignContainer*> containers;
    return containers;
}

class ForeignContainer : public QWidget {
public:
    // With a frame of its own, which nobody sees, it would be larger than its window by that.
    explicit ForeignContainer(Long number) : QWidget(nullptr, Qt::FramelessWindowHint), number_(number)
    {
        window_ = system::ForeignWindow::Of(
            number, {[this](int width, int height) { Fill(width, height); }, [this] { delete this; }});
    }
    ~ForeignContainer() override
    {
        Containers().remove(number_);
        // The system takes the windows within a window along with it.
        hide();
        if (windowHandle())
            windowHandle()->setParent(nullptr);
    }

    bool HasWindow() const { return window_ != nullptr; }

    void Enter()
    {
        Containers().insert(number_, this);
        winId();
        around_.reset(QWindow::fromWinId(static_cast<WId>(number_)));
        windowHandle()->setParent(around_.get());
        window_->Hold(static_cast<Long>(winId()));
        Fill(window_->Width(), window_->Height());
        show();
    }

protected:
    // A form that keeps the user to itself keeps him out of the program's window, too.
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::WindowUnblocked)
            window_->Block(event->type() == QEvent::WindowBlocked);
        return QWidget::event(event);
    }

private:
    void Fill(int width, int height)
    {
        const qreal scale = devicePixelRatioF();
        setGeometry(0, 0, qRound(width / scale), qRound(height / scale));
    }

    const Long number_;
    std::unique_ptr<system::ForeignWindow> window_;
    std::unique_ptr<QWindow> around_;
};

} // namespace

QWidget* ContainerIn(Long window)
{
    if (ForeignContainer* known = Containers().value(window))
        return known;
    auto made = std::make_unique<ForeignContainer>(window);
    if (!made->HasWindow())
        return nullptr;
    made->Enter();
    return made.release();
}

} // namespace kova::host
