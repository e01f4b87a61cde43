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

/// Answers a widget that fills a window of the process which is none of the toolkit's; null where there is
/// none.
using WindowTaker = QWidget* (*)(Long window);
/// Who is asked for such; nobody is unless told.
void TakeForeignWindowsBy(WindowTaker taker);

/// What a form may be put into: the widget with that handle, else one in a window that is none of the
/// toolkit's.
QWidget* ContainerOfHandle(Long handle);

} // namespace kova::qt
