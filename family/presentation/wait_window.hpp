#pragma once

#include <QWidget>

namespace kova::family {

/// A line of text on a plate of its own, in the middle of the window in front or of the screen. It is on show
/// and painted once it is made, takes no focus, lets later boxes stand in front of it, and is gone with its
/// object.
class WaitWindow : public QWidget {
public:
    explicit WaitWindow(const QString& text);

private:
    void AddText(const QString& text);
    void PlaceInFront();
};

} // namespace kova::family
