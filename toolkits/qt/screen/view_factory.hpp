#pragma once

#include <memory>

class QWidget;

namespace kova {
class Clock;
}
namespace kova::toolkit {
class View;
class WidgetCore;
} // namespace kova::toolkit

namespace kova::qt {

/// The view of a widget on its parent; null where the widget is not drawn by one. The one place that knows
/// every kind of view. The clock must outlive it.
std::unique_ptr<toolkit::View> ViewOn(QWidget& parent, toolkit::WidgetCore& widget, const Clock& clock);

} // namespace kova::qt
