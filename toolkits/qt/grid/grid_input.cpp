// What the user does on the grid's canvas.

#include "toolkits/qt/grid/grid_canvas.hpp"

#include "toolkits/common/grid/grid.hpp"
#include "toolkits/qt/look/theme.hpp"
#include "toolkits/qt/look/tool_tip.hpp"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace kova::qt {

using toolkit::GridKey;

namespace {

Integer ButtonOf(Qt::MouseButtons buttons)
{
    if (buttons & Qt::LeftButton)
        return 1;
    return buttons & Qt::RightButton ? 2 : 0;
}

Integer ShiftOf(Qt::KeyboardModifiers modifiers)
{
    int shift = modifiers & Qt::ShiftModifier ? 1 : 0;
    shift += modifiers & Qt::ControlModifier ? 2 : 0;
    shift += modifiers & Qt::AltModifier ? 4 : 0;
    return static_cast<Integer>(shift);
}

/// Where a mouse points that stands on a pixel: at its middle. Its edge may be the border of two rows, which
/// the form and the grid give to different ones.
struct Place {
    explicit Place(const QPointF& pixel) : x(ToTwips(pixel.x() + half)), y(ToTwips(pixel.y() + half)) { }

    static constexpr double half = 0.5;
    Twips x;
    Twips y;
};

std::optional<GridKey> KeyOf(int key)
{
    switch (key) {
    case Qt::Key_Up: return GridKey::Up;
    case Qt::Key_Down: return GridKey::Down;
    case Qt::Key_PageUp: return GridKey::PageUp;
    case Qt::Key_PageDown: return GridKey::PageDown;
    case Qt::Key_Home: return GridKey::Home;
    case Qt::Key_End: return GridKey::End;
    default: return std::nullopt;
    }
}

} // namespace

bool GridCanvas::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        ShowWholeText(*static_cast<QHelpEvent*>(event));
        return true;
    }
    return PlainPanel::event(event);
}

// A cell whose text may be cut tells it whole.
void GridCanvas::ShowWholeText(const QHelpEvent& event)
{
    const Place place(event.pos());
    const auto cell = model_.HitTest(place.x, place.y);
    if (!cell || model_.IsFixed(cell->row, cell->col))
        return QToolTip::hideText();
    const QRect area = CellArea(cell->row, cell->col);
    const Text& text = model_.CellText(cell->row, cell->col);
    const QFont font = MakeFont(model_.Look().font.name, static_cast<double>(model_.Look().font.size));
    if (QFontMetricsF(font).horizontalAdvance(Lines(text)) > area.width() - 12)
        QToolTip::showText(event.globalPos(), ToolTipOf(text), this, area);
    else
        QToolTip::hideText();
}

void GridCanvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    draggedEdge_ = EdgeAt(event->position());
    const Place place(event->position());
    if (!draggedEdge_)
        model_.UserPresses(place.x, place.y);
}

void GridCanvas::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void GridCanvas::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF pixel = event->position();
    if (draggedEdge_)
        return DragEdge(pixel);
    const Place place(pixel);
    if (event->buttons() & Qt::LeftButton)
        model_.UserDrags(place.x, place.y);
    setCursor(EdgeAt(pixel) ? Qt::SplitHCursor : Qt::ArrowCursor);
    model_.UserMovesMouse(ButtonOf(event->buttons()), ShiftOf(event->modifiers()), place.x, place.y);
}

void GridCanvas::MouseIsAt(const QPointF& pixel)
{
    const Place place(pixel);
    model_.UserMovesMouse(0, 0, place.x, place.y);
}

void GridCanvas::MouseIsAbove(const QPointF& pixel)
{
    const Place place(pixel);
    model_.UserMovesAbove(place.x, place.y);
}

void GridCanvas::MouseLeaves() { model_.UserLeaves(); }

void GridCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const bool resized = draggedEdge_.has_value();
    draggedEdge_.reset();
    const Place place(event->position());
    if (!resized)
        model_.UserReleases(place.x, place.y);
}

// The column whose right edge in the header is under the mouse.
std::optional<Long> GridCanvas::EdgeAt(const QPointF& place) const
{
    constexpr double reach = 4;
    const auto& rows = model_.RowAxis();
    if (!(model_.Look().allowUserResizing & 1) || rows.Fixed() == 0 || !RowArea(0).contains(place.toPoint()))
        return std::nullopt;
    for (const Span& column : ColumnsOnShow()) {
        if (std::abs(place.x() - (column.start + column.length)) <= reach)
            return column.index;
    }
    return std::nullopt;
}

void GridCanvas::DragEdge(const QPointF& place)
{
    constexpr double narrowest = 20;
    const Long start = model_.ColumnAxis().Start(*draggedEdge_);
    const double width = std::max(narrowest, place.x() - start / TwipsOfPixel);
    model_.UserResizesColumn(*draggedEdge_, static_cast<Long>(std::lround(width * TwipsOfPixel)));
}

void GridCanvas::wheelEvent(QWheelEvent* event)
{
    constexpr int rowsPerStep = 3;
    constexpr int unitsPerRow = 120 / rowsPerStep;
    if (!vertical_->isVisibleTo(this)) {
        event->ignore();
        return;
    }
    wheelRest_ += event->angleDelta().y();
    const int rows = wheelRest_ / unitsPerRow;
    wheelRest_ -= rows * unitsPerRow;
    if (rows != 0)
        model_.UserScrolls(model_.RowAxis().First() - rows, model_.ColumnAxis().First());
    event->accept();
}

void GridCanvas::keyPressEvent(QKeyEvent* event)
{
    if (const auto key = KeyOf(event->key()))
        model_.UserKey(*key);
    else if (event->key() == Qt::Key_Space && !event->isAutoRepeat())
        model_.UserPressesRow();
    else
        event->ignore();
}

void GridCanvas::focusInEvent(QFocusEvent*) { update(RowArea(model_.Cursor().row)); }

void GridCanvas::focusOutEvent(QFocusEvent*) { update(RowArea(model_.Cursor().row)); }

} // namespace kova::qt
