#pragma once

#include <QString>

#include <vector>

class QWidget;

namespace kova::family {

/// A key of a window and what it does there.
struct WindowKey {
    QString key;
    QString purpose;
};

/// Lists keys over a window and waits until the user closes the list.
void ShowWindowKeys(QWidget* over, const std::vector<WindowKey>& keys);

} // namespace kova::family
