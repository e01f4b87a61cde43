#pragma once

#include "agenda/contracts/value.hpp"

class QWidget;

/// Windows by number, as forms, panels and the host pass them to each other.
namespace kova::qt {

/// The widget's handle: its window number where it has a native window, else a number of this
/// process's own that no native window has. Making it does not make the widget native.
Long HandleOf(QWidget& widget);

/// The widget of this process with that handle, by either kind of number; null where there is none.
QWidget* WidgetOfHandle(Long handle);

} // namespace kova::qt
