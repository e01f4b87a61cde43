#include "toolkits/qt/burial.hpp"

#include "toolkits/common/toolkit.hpp"

#include <QCoreApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <utility>
#include <vector>

namespace kova::qt {

namespace {

struct Burials {
    std::vector<QPointer<QWidget>> waiting;
    const toolkit::ToolkitModel* toolkit = nullptr;
};

Burials& TheBurials()
{
    static Burials burials;
    return burials;
}

// A loop inside a handler comes by here too, and leaves it to the handler's end.
void BuryNow()
{
    Burials& burials = TheBurials();
    if (burials.toolkit && burials.toolkit->IsInsideEvent())
        return;
    const auto waiting = std::exchange(burials.waiting, {});
    for (const auto& widget : waiting)
        delete widget.data();
}

} // namespace

void Bury(QWidget& widget)
{
    widget.hide();
    TheBurials().waiting.emplace_back(&widget);
    ScheduleBurials();
}

void BurialsWaitFor(const toolkit::ToolkitModel* toolkit) { TheBurials().toolkit = toolkit; }

void ScheduleBurials()
{
    if (!TheBurials().waiting.empty())
        QTimer::singleShot(0, QCoreApplication::instance(), &BuryNow);
}

} // namespace kova::qt
