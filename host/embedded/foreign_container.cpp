#include "host/embedded/foreign_container.hpp"

#include "system/foreign_window.hpp"

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
    explicit ForeignContainer(Long number) : number_(number)
    {
        window_ = system::ForeignWindow::Of(
            number, {[this](int width, int height) { Fill(width, height); }, [this] { delete this; }});
    }
    ~ForeignContainer() override
    {
        Containers().remove(number_);
        // The system takes the windows within a window along with it.
        if (windowHandle())
            windowHandle()->setParent(nullptr);
    }

    bool HasWindow() const { return window_ != nullptr; }

    void Enter()
    {
        Containers().insert(number_, this);
        winId();
        windowHandle()->setParent(QWindow::fromWinId(static_cast<WId>(number_)));
        Fill(window_->Width(), window_->Height());
        show();
    }

private:
    void Fill(int width, int height)
    {
        const qreal scale = devicePixelRatioF();
        setGeometry(0, 0, qRound(width / scale), qRound(height / scale));
    }

    const Long number_;
    std::unique_ptr<system::ForeignWindow> window_;
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
