#pragma once

#include "agenda/contracts/widgets/widget.hpp"
#include "toolkits/qt/grid/grid_text.hpp"
#include "toolkits/qt/mouse_follower.hpp"
#include "toolkits/qt/plain_panel.hpp"

#include <optional>
#include <vector>

class QHelpEvent;
class QScrollBar;

namespace kova::toolkit {
class GridAxis;
class GridModel;
struct CellLook;
struct GridChange;
} // namespace kova::toolkit

namespace kova::qt {

/// The grid's one widget: paints the cells on show from the model and forwards mouse, wheel and keys.
class GridCanvas : public PlainPanel, public MouseFollower {
public:
    GridCanvas(toolkit::GridModel& model, QWidget* parent);

    /// Repaints what changed, and nothing else.
    void Apply(const toolkit::GridChange& change);

    void MouseIsAt(const QPointF& pixel) override;
    void MouseIsAbove(const QPointF& pixel) override;
    void MouseLeaves() override;

    const toolkit::GridModel& Model() const { return model_; }
    /// Place of a row across the whole grid, in pixels; empty where it is not on show.
    QRect RowArea(Long row) const;
    QRect CellArea(Long row, Long col) const;
    /// What a screen reader says of a row: header and text of its visible cells.
    QString RowAsText(Long row) const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    /// A stretch of rows or columns on show.
    struct Span {
        Long index = 0;
        int start = 0;
        int length = 0;
    };

    std::vector<Span> SpansOnShow(const toolkit::GridAxis& axis, Twips origin, int limit) const;
    std::vector<Span> ColumnsOnShow() const;
    std::vector<Span> RowsOnShow() const;
    void PaintRow(QPainter& painter, const Span& row, const std::vector<Span>& columns, const QRect& dirty);
    bool IsChosen(Long row) const;
    void PaintMark(QPainter& painter, const Span& row, int left, int right);
    void PaintCell(QPainter& painter, Long row, Long col, const QRect& area);
    void PaintCellPicture(QPainter& painter, const toolkit::CellLook& look, const Text& name,
                          const QRect& area);
    void PaintLines(QPainter& painter, Long row, Long col, const QRect& area);
    Qt::Alignment AlignmentOf(Long col, const Text& text) const;
    void PlaceScrollBars();
    void ScrollTo();
    std::optional<Long> EdgeAt(const QPointF& place) const;
    void DragEdge(const QPointF& place);
    void ShowWholeText(const QHelpEvent& event);
    void AnnounceRow();

    toolkit::GridModel& model_;
    GridText text_;
    QScrollBar* vertical_;
    QScrollBar* horizontal_;
    std::optional<Long> draggedEdge_;
    bool placingBars_ = false;
    Long announcedRow_ = -1;
    int wheelRest_ = 0;
};

} // namespace kova::qt
