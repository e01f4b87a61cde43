// A block that is being moved to another time or column, or to another end.

#include "timetable/timetable_view.hpp"

#include <QApplication>

#include <algorithm>

namespace kova::timetable {

namespace {

constexpr int MinutesOfDay = GridMeasures::MinutesOfDay;

/// The same length at another beginning, within the day.
family::PartOfDay BegunAt(family::PartOfDay part, int from)
{
    const int length = part.until - part.from;
    const int begin = std::clamp(from, 0, MinutesOfDay - length);
    return {begin, begin + length};
}

} // namespace

void TimetableView::Take(const QPoint& point)
{
    const QModelIndex block = indexAt(point);
    grip_.reset();
    if (!block.isValid())
        return;
    const int under = measures_.MinuteAt(point.y() + verticalOffset());
    grip_ = Grip{block.row(), IsAtLowerEdge(block, point), point,
                 std::max(0, under - blocks_.Block(block.row()).part.from)};
}

void TimetableView::DragTo(const QPoint& point)
{
    if (!shift_ && (point - grip_->at).manhattanLength() < QApplication::startDragDistance())
        return;
    // Near an edge what lies behind it comes.
    const QPoint place = point + Scrolled();
    MakeSeen(QRect(place, QSize(1, 1)).marginsAdded(QMargins(8, 8, 8, 8)));
    const family::PartOfDay part = blocks_.Block(grip_->row).part;
    const int minute = measures_.MinuteAt(point.y() + verticalOffset());
    if (grip_->isLowerEdge) {
        // To the end of the line under the mouse.
        const int until = std::min(measures_.LineOf(minute) + measures_.step, MinutesOfDay);
        return ShiftTo(
            {grip_->row,
             blocks_.ColumnOf(grip_->row),
             {part.from, std::max(until, part.from + std::min(measures_.step, MinutesOfDay - part.from))}});
    }
    const int column = std::clamp((point.x() + horizontalOffset() - measures_.hoursWidth)
                                      / std::max(1, measures_.columnWidth),
                                  0, measures_.columns - 1);
    const int from = std::max(0, minute - grip_->minutes + measures_.step / 2);
    ShiftTo({grip_->row, column, BegunAt(part, measures_.LineOf(from))});
}

bool TimetableView::ShiftByKey(int key, Qt::KeyboardModifiers modifiers)
{
    if (shift_ && modifiers == Qt::NoModifier) {
        if (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter) {
            EndShift(key != Qt::Key_Escape);
            return true;
        }
        EndShift(false);
    }
    const QModelIndex current = currentIndex();
    const bool movesAll = modifiers == (Qt::ControlModifier | Qt::ShiftModifier);
    if (!current.isValid() || (!movesAll && modifiers != Qt::ShiftModifier))
        return false;
    BlockShift shift = shift_.value_or(BlockShift{current.row(), column_, blocks_.Block(current.row()).part});
    const int step = measures_.step;
    if (!movesAll && (key == Qt::Key_PageUp || key == Qt::Key_PageDown)) {
        const int until = shift.part.until + (key == Qt::Key_PageDown ? step : -step);
        shift.part.until = std::clamp(until, shift.part.from + 1, MinutesOfDay);
    } else if (movesAll && (key == Qt::Key_Up || key == Qt::Key_Down)) {
        shift.part = BegunAt(shift.part, shift.part.from + (key == Qt::Key_Down ? step : -step));
    } else if (movesAll && (key == Qt::Key_Left || key == Qt::Key_Right)) {
        shift.column = std::clamp(shift.column + (key == Qt::Key_Right ? 1 : -1), 0, measures_.columns - 1);
    } else {
        return false;
    }
    ShiftTo(shift);
    MakeSeen(measures_.Part(shift.column, shift.part));
    return true;
}

void TimetableView::ShiftTo(const BlockShift& shift)
{
    shift_ = shift;
    viewport()->setCursor(Qt::ClosedHandCursor);
    viewport()->update();
    onShifting(shift_);
}

void TimetableView::EndShift(bool isMeant)
{
    if (!shift_)
        return;
    const BlockShift shift = *shift_;
    shift_.reset();
    grip_.reset();
    viewport()->setCursor(Qt::ArrowCursor);
    viewport()->update();
    onShifting(std::nullopt);
    const family::PartOfDay part = blocks_.Block(shift.row).part;
    const bool isElsewhere = shift.column != blocks_.ColumnOf(shift.row) || shift.part.from != part.from
        || shift.part.until != part.until;
    if (isMeant && isElsewhere)
        onShift(shift);
}

} // namespace kova::timetable
