#pragma once

class QWidget;

namespace kova::qt {

/// Marks a widget that presses itself by Enter, such as a button inside a bar: the form leaves the key to it.
void KeepEnter(QWidget& widget);
bool KeepsEnter(const QWidget& widget);

} // namespace kova::qt
