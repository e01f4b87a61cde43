#pragma once

class QPointF;

namespace kova::qt {

/// A widget that knows where the mouse rests on it, such as a grid: it is told also of moves that do not
/// reach it as events.
class MouseFollower {
public:
    virtual ~MouseFollower() = default;

    /// The mouse is at a place of the widget while the form takes no input.
    virtual void MouseIsAt(const QPointF& pixel) = 0;
    /// The mouse is over what covers the widget at that place.
    virtual void MouseIsAbove(const QPointF& pixel) = 0;
    /// The mouse left the widget and what covers it.
    virtual void MouseLeaves() = 0;
};

} // namespace kova::qt
