#pragma once

#include "timetable/block_model.hpp"
#include "timetable/grid_measures.hpp"

#include <QAbstractItemView>

#include <functional>
#include <optional>

namespace kova::timetable {

/// Where a block is meant to go.
struct BlockShift {
    int row = 0, column = 0;
    family::PartOfDay part;
};

/// A timetable on the screen, an item view: each block is an item, which assistive tools read as a sentence.
/// One place of it has the cursor, a line of a column, which the arrows and the mouse move: the block that
/// lies there is the current item, and where none does there is no current item. Page up and down move by an
/// hour, Home and End to the first and last line.
///
/// A block can be moved: by the mouse, which takes it by its middle or by its lower edge, or by keys, with
/// Ctrl and Shift by its whole and with Shift and Page up or down by its end. It is drawn where it is meant
/// to go until the button is let go, or Enter is pressed; Escape leaves it where it was.
class TimetableView : public QAbstractItemView {
public:
    TimetableView(BlockModel& blocks, QWidget* parent);

    /// Lays the model out anew, with lines of so many minutes; the cursor stays where it is, if there is such
    /// a place.
    void LayOut(int step);
    /// Scrolls so that the minute's line is the first one on show, as far as the day goes.
    void ScrollTo(int minute);
    /// How far it is scrolled, in logical pixels.
    QPoint Scrolled() const { return {horizontalOffset(), verticalOffset()}; }
    /// The line of now, in the columns of that date; none where it is not told.
    void TellNow(const std::optional<DateTime>& now);
    /// Moves the cursor there, and makes it seen.
    void MoveTo(int column, int minute);
    /// The cursor's column, -1 without columns, and the minute that its line begins with.
    int Column() const { return column_; }
    int Minute() const { return minute_; }
    /// Whether a block is held, or is being moved by keys.
    bool IsShifting() const { return grip_.has_value() || shift_.has_value(); }
    /// What lies under the cursor, as a sentence.
    QString PlaceAsText() const;
    BlockModel& Blocks() const { return blocks_; }
    const GridMeasures& Measures() const { return measures_; }

    /// The cursor has another place.
    std::function<void()> onMoved = [] {};
    /// Enter or a double press where no block lies.
    std::function<void(int column, int minute)> onPlace = [](int, int) {};
    /// The same on a block.
    std::function<void(int row)> onBlock = [](int) {};
    /// A block is let go of at another place.
    std::function<void(const BlockShift& shift)> onShift = [](const BlockShift&) {};
    /// Where it would go, or nothing any more.
    std::function<void(const std::optional<BlockShift>& shift)> onShifting = [](const auto&) {};
    /// A menu is asked for at a place of the screen, of what lies under the cursor.
    std::function<void(const QPoint& at)> onMenu = [](const QPoint&) {};

    QRect visualRect(const QModelIndex& index) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    QModelIndex indexAt(const QPoint& point) const override;
    QSize sizeHint() const override { return {600, 400}; }

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    int horizontalOffset() const override;
    int verticalOffset() const override;
    bool isIndexHidden(const QModelIndex&) const override { return false; }
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
    QRegion visualRegionForSelection(const QItemSelection& selection) const override;
    void updateGeometries() override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool event(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    QRect PlaceRect() const;
    void MakeSeen(const QRect& rect);
    void Activate();
    bool IsAtLowerEdge(const QModelIndex& block, const QPoint& point) const;
    // timetable_shift.cpp
    void Take(const QPoint& point);
    void DragTo(const QPoint& point);
    bool ShiftByKey(int key, Qt::KeyboardModifiers modifiers);
    void ShiftTo(const BlockShift& shift);
    /// Of one that is moved: lets go of it there, or leaves it where it was.
    void EndShift(bool isMeant);
    void MoveByLines(int lines);
    bool Move(int key);
    void PaintGround(QPainter& painter, const QRect& seen) const;
    void PaintBlocks(QPainter& painter, const QRect& seen) const;
    void PaintBlock(QPainter& painter, int row, const QRect& rect) const;
    /// What stands in a block, as far as there is room: so wide, but for the first line, and so high.
    const QStringList& LinesOf(int row, const QSize& first, int width, const QFontMetrics& metrics) const;
    void PaintCursor(QPainter& painter) const;
    void PaintShift(QPainter& painter) const;
    void PaintNow(QPainter& painter) const;
    void PaintNames(QPainter& painter, const QRect& seen) const;
    void PaintHours(QPainter& painter, const QRect& seen) const;

    BlockModel& blocks_;
    GridMeasures measures_;
    /// By row.
    std::vector<Lane> lanes_;
    struct Shortened {
        int width = 0, height = 0;
        QStringList lines;
    };
    /// By row; empty as long as it was not painted.
    mutable std::vector<Shortened> shortened_;
    std::optional<DateTime> now_;
    int column_ = -1, minute_ = 8 * 60;
    /// By which the mouse holds a block.
    struct Grip {
        int row = 0;
        bool isLowerEdge = false;
        QPoint at;
        /// From the block's beginning.
        int minutes = 0;
    };
    std::optional<Grip> grip_;
    std::optional<BlockShift> shift_;
};

/// Lets assistive tools read timetables. Called once.
void InstallTimetableAccessibility();

} // namespace kova::timetable
