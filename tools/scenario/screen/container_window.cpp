#include "tools/scenario/screen/container_window.hpp"

#include "toolkits/qt/form.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QCloseEvent>

namespace kova::scenario {

ContainerWindow::ContainerWindow(toolkit::InnerSize inner)
{
    setObjectName(QStringLiteral("container"));
    Resize(inner);
    show();
    activateWindow();
}

void ContainerWindow::Resize(toolkit::InnerSize inner)
{
    inner_ = inner;
    resize(qt::Pixels(inner.width), qt::Pixels(inner.height));
}

void ContainerWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    for (QObject* child : children()) {
        if (auto* form = dynamic_cast<qt::FormWidget*>(child); form && form->isVisible())
            return static_cast<void>(form->close());
    }
}

} // namespace kova::scenario
