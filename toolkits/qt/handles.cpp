#include "toolkits/qt/handles.hpp"

#include <QHash>
#include <QPointer>
#include <QWidget>

namespace kova::qt {

namespace {

// Window numbers of the display server end below 2^29.
constexpr Long FirstOwnHandle = 0x40000000;
constexpr const char* HandleProperty = "kovaHandle";

QHash<Long, QPointer<QWidget>>& OwnHandles()
{
    static QHash<Long, QPointer<QWidget>> handles;
    return handles;
}

WindowTaker& TheTaker()
{
    static WindowTaker taker = nullptr;
    return taker;
}

Long NewHandle(QWidget& widget)
{
    static Long next = FirstOwnHandle;
    const Long handle = next++;
    OwnHandles().insert(handle, &widget);
    widget.setProperty(HandleProperty, handle);
    QObject::connect(&widget, &QObject::destroyed, [handle] { OwnHandles().remove(handle); });
    return handle;
}

} // namespace

Long HandleOf(QWidget& widget)
{
    const QVariant known = widget.property(HandleProperty);
    if (known.isValid())
        return known.toInt();
    if (widget.internalWinId() != 0)
        return static_cast<Long>(widget.internalWinId());
    return NewHandle(widget);
}

QWidget* WidgetOfHandle(Long handle)
{
    if (handle >= FirstOwnHandle)
        return OwnHandles().value(handle);
    return QWidget::find(static_cast<WId>(handle));
}

void TakeForeignWindowsBy(WindowTaker taker) { TheTaker() = taker; }

QWidget* ContainerOfHandle(Long handle)
{
    QWidget* widget = WidgetOfHandle(handle);
    return widget || !TheTaker() ? widget : TheTaker()(handle);
}

} // namespace kova::qt
