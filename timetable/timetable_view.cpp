#include "timetable/timetable_view.hpp"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>

namespace kova::timetable {

namespace {

constexpr int MinutesOfHour = 60;
constexpr int NarrowestColumn = 96;

} // namespace

TimetableView::TimetableView(BlockModel& blocks, QWidget* parent) : QAbstractItemView(parent), blocks_(blocks)
{
    InstallTimetableAccessibility();
    setModel(&blocks);
    setObjectName(QStringLiteral("horarios"));
    setAccessibleName(QStringLiteral("Horários"));
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    setFrameShape(NoFrame);
    setTabKeyNavigation(false);
    viewport()->setMouseTracking(true);
}

void TimetableView::LayOut(int step)
{
    EndShift(false);
    grip_.reset();
    measures_.step = step;
    measures_.lineHeight = fontMetrics().height() + 6;
    measures_.columns = static_cast<int>(blocks_.Columns().size());
    lanes_.clear();
    shortened_.clear();
    for (int column = 0; column < measures_.columns; ++column) {
        std::vector<family::PartOfDay> parts;
        const BlockModel::Range rows = blocks_.RowsOf(column);
        for (int row = rows.first; row < rows.end; ++row) {
            family::PartOfDay part = blocks_.Block(row).part;
            // As long as it is drawn.
            part.until = std::max(part.until, part.from + step);
            parts.push_back(part);
        }
        const std::vector<Lane> lanes = LanesOf(parts);
        lanes_.insert(lanes_.end(), lanes.begin(), lanes.end());
    }
    updateGeometries();
    const int column = std::clamp(column_, std::min(0, measures_.columns - 1), measures_.columns - 1);
    column_ = column;
    minute_ = measures_.LineOf(minute_);
    setCurrentIndex(column < 0 ? QModelIndex() : blocks_.index(blocks_.RowAt(column, minute_)));
    viewport()->update();
}

void TimetableView::ScrollTo(int minute)
{
    verticalScrollBar()->setValue(measures_.HeightOf(measures_.LineOf(minute)));
}

void TimetableView::TellNow(const std::optional<DateTime>& now)
{
    now_ = now;
    viewport()->update();
}

void TimetableView::MoveTo(int column, int minute)
{
    if (column < 0 || column >= measures_.columns)
        return;
    column_ = column;
    minute_ = std::clamp(minute, 0, GridMeasures::MinutesOfDay - 1);
    const int row = blocks_.RowAt(column_, minute_);
    setCurrentIndex(blocks_.index(row));
    MakeSeen(row < 0 ? PlaceRect() : visualRect(blocks_.index(row)).translated(Scrolled()));
    QAccessibleEvent moved(this, QAccessible::Focus);
    moved.setChild(row + 1);
    QAccessible::updateAccessibility(&moved);
    viewport()->update();
    onMoved();
}

QString TimetableView::PlaceAsText() const
{
    return column_ < 0 ? QString() : blocks_.PlaceAsText(column_, minute_);
}

QRect TimetableView::PlaceRect() const
{
    const int line = measures_.LineOf(minute_);
    return measures_.Part(column_, {line, std::min(line + measures_.step, GridMeasures::MinutesOfDay)});
}

QRect TimetableView::visualRect(const QModelIndex& index) const
{
    if (!index.isValid() || index.row() >= static_cast<int>(lanes_.size()))
        return {};
    return measures_
        .Block(blocks_.ColumnOf(index.row()), blocks_.Block(index.row()).part,
               lanes_[static_cast<std::size_t>(index.row())])
        .translated(-Scrolled());
}

void TimetableView::scrollTo(const QModelIndex& index, ScrollHint)
{
    if (index.isValid())
        MakeSeen(visualRect(index).translated(Scrolled()));
}

void TimetableView::MakeSeen(const QRect& rect)
{
    const auto scroll = [](QScrollBar& bar, int from, int until, int strip, int room) {
        if (from - strip < bar.value())
            bar.setValue(from - strip);
        else if (until > bar.value() + room)
            bar.setValue(std::min(until - room, from - strip));
    };
    scroll(*horizontalScrollBar(), rect.left(), rect.right() + 1, measures_.hoursWidth, viewport()->width());
    scroll(*verticalScrollBar(), rect.top(), rect.bottom() + 1, measures_.namesHeight, viewport()->height());
}

QModelIndex TimetableView::indexAt(const QPoint& point) const
{
    if (point.y() < measures_.namesHeight || point.x() < measures_.hoursWidth)
        return {};
    const int column = measures_.ColumnAt(point.x() + horizontalOffset());
    if (column < 0)
        return {};
    const BlockModel::Range rows = blocks_.RowsOf(column);
    for (int row = rows.first; row < rows.end; ++row) {
        if (visualRect(blocks_.index(row)).contains(point))
            return blocks_.index(row);
    }
    return {};
}

QModelIndex TimetableView::moveCursor(CursorAction, Qt::KeyboardModifiers) { return currentIndex(); }

int TimetableView::horizontalOffset() const { return horizontalScrollBar()->value(); }

int TimetableView::verticalOffset() const { return verticalScrollBar()->value(); }

// The cursor decides what is marked.
void TimetableView::setSelection(const QRect&, QItemSelectionModel::SelectionFlags) { }

QRegion TimetableView::visualRegionForSelection(const QItemSelection& selection) const
{
    QRegion region;
    for (const QModelIndex& index : selection.indexes())
        region += visualRect(index);
    return region;
}

void TimetableView::updateGeometries()
{
    const int room = viewport()->width() - measures_.hoursWidth;
    if (measures_.columns > 0)
        measures_.columnWidth = std::max(NarrowestColumn, room / measures_.columns);
    const QSize size = measures_.Size();
    horizontalScrollBar()->setRange(0, std::max(0, size.width() - viewport()->width()));
    horizontalScrollBar()->setPageStep(room);
    horizontalScrollBar()->setSingleStep(measures_.columnWidth);
    verticalScrollBar()->setRange(0, std::max(0, size.height() - viewport()->height()));
    verticalScrollBar()->setPageStep(viewport()->height() - measures_.namesHeight);
    verticalScrollBar()->setSingleStep(measures_.lineHeight);
}

void TimetableView::resizeEvent(QResizeEvent* event)
{
    QAbstractItemView::resizeEvent(event);
    updateGeometries();
}

void TimetableView::mousePressEvent(QMouseEvent* event)
{
    const QPoint point = event->position().toPoint();
    const int column = measures_.ColumnAt(point.x() + horizontalOffset());
    if (column < 0 || point.y() < measures_.namesHeight || point.x() < measures_.hoursWidth)
        return;
    EndShift(false);
    const QModelIndex block = indexAt(point);
    if (event->button() == Qt::LeftButton)
        Take(point);
    if (!block.isValid())
        return MoveTo(column, measures_.LineOf(measures_.MinuteAt(point.y() + verticalOffset())));
    column_ = column;
    minute_ = blocks_.Block(block.row()).part.from;
    setCurrentIndex(block);
    viewport()->update();
    onMoved();
}

void TimetableView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    mousePressEvent(event);
    grip_.reset();
    Activate();
}

void TimetableView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint point = event->position().toPoint();
    if (grip_ && (event->buttons() & Qt::LeftButton) != 0)
        return DragTo(point);
    const QModelIndex block = indexAt(point);
    viewport()->setCursor(IsAtLowerEdge(block, point) ? Qt::SizeVerCursor
                              : block.isValid()       ? Qt::OpenHandCursor
                                                      : Qt::ArrowCursor);
}

void TimetableView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    grip_.reset();
    EndShift(true);
}

bool TimetableView::IsAtLowerEdge(const QModelIndex& block, const QPoint& point) const
{
    constexpr int Edge = 5;
    return block.isValid() && point.y() > visualRect(block).bottom() - Edge;
}

void TimetableView::contextMenuEvent(QContextMenuEvent* event)
{
    if (column_ < 0)
        return;
    const QModelIndex current = currentIndex();
    const QRect place = current.isValid() ? visualRect(current) : PlaceRect().translated(-Scrolled());
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
    onMenu(isByKey ? viewport()->mapToGlobal(place.center()) : event->globalPos());
}

bool TimetableView::event(QEvent* event)
{
    // Escape and Enter end a shift, whatever they mean to the window.
    if (event->type() == QEvent::ShortcutOverride && shift_) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter) {
            event->accept();
            return true;
        }
    }
    return QAbstractItemView::event(event);
}

void TimetableView::Activate()
{
    if (currentIndex().isValid())
        onBlock(currentIndex().row());
    else if (column_ >= 0)
        onPlace(column_, minute_);
}

void TimetableView::keyPressEvent(QKeyEvent* event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const bool isPlain = modifiers == Qt::NoModifier;
    if (ShiftByKey(event->key(), modifiers))
        return;
    if (!isPlain || !Move(event->key()))
        event->ignore();
}

bool TimetableView::Move(int key)
{
    switch (key) {
    case Qt::Key_Up: MoveByLines(-1); return true;
    case Qt::Key_Down: MoveByLines(1); return true;
    case Qt::Key_PageUp: MoveTo(column_, minute_ - MinutesOfHour); return true;
    case Qt::Key_PageDown: MoveTo(column_, minute_ + MinutesOfHour); return true;
    case Qt::Key_Left: MoveTo(column_ - 1, minute_); return true;
    case Qt::Key_Right: MoveTo(column_ + 1, minute_); return true;
    case Qt::Key_Home: MoveTo(column_, 0); return true;
    case Qt::Key_End: MoveTo(column_, GridMeasures::MinutesOfDay - measures_.step); return true;
    case Qt::Key_Return:
    case Qt::Key_Enter: Activate(); return true;
    default: return false;
    }
}

/// To the next line, but over the whole block that has the cursor, and not past the beginning of another one.
void TimetableView::MoveByLines(int lines)
{
    const QModelIndex current = currentIndex();
    const int line = measures_.LineOf(minute_);
    if (lines < 0) {
        const int from = current.isValid() ? blocks_.Block(current.row()).part.from : line;
        return MoveTo(column_, from % measures_.step != 0 ? measures_.LineOf(from) : from - measures_.step);
    }
    const int until = current.isValid() ? blocks_.Block(current.row()).part.until : line + measures_.step;
    if (until >= GridMeasures::MinutesOfDay)
        return;
    MoveTo(column_, until);
}

void TimetableView::focusInEvent(QFocusEvent* event)
{
    QAbstractItemView::focusInEvent(event);
    viewport()->update();
}

void TimetableView::focusOutEvent(QFocusEvent* event)
{
    QAbstractItemView::focusOutEvent(event);
    EndShift(false);
    viewport()->update();
}

} // namespace kova::timetable
