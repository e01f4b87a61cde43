#include "toolkits/qt/grid/grid_canvas.hpp"

#include "agenda/contracts/text.hpp"
#include "toolkits/common/grid/grid.hpp"
#include "toolkits/qt/look/painting.hpp"
#include "toolkits/qt/look/pictures.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QAccessible>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace kova::qt {

using toolkit::GridAxis;
using toolkit::GridChange;

namespace {

constexpr int CellPadding = 6;

// Pixel of an edge inside a window that begins at `origin` of its container: rounded as the edges of
// the window's neighbours are, so that buttons laid over a row cover it to the pixel.
int PixelOf(Twips origin, Long edge) { return Pixels(origin + static_cast<Twips>(edge)) - Pixels(origin); }

QColor CellGround(Colour colour) { return GroundColor(colour, look::Ink); }

} // namespace

GridCanvas::GridCanvas(toolkit::GridModel& model, QWidget* parent)
    : PlainPanel(parent),
      model_(model),
      vertical_(new QScrollBar(Qt::Vertical, this)),
      horizontal_(new QScrollBar(Qt::Horizontal, this))
{
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    for (QScrollBar* bar : {vertical_, horizontal_}) {
        bar->hide();
        bar->setCursor(Qt::ArrowCursor);
        bar->setContextMenuPolicy(Qt::NoContextMenu);
        connect(bar, &QScrollBar::valueChanged, this, [this] { ScrollTo(); });
    }
}

void GridCanvas::Apply(const GridChange& change)
{
    if (!model_.IsPainted() || change.IsEmpty())
        return;
    if (change.all) {
        const toolkit::Font& font = model_.Look().font;
        text_.SetFont(MakeFont(font.name, static_cast<double>(font.size), font.bold));
        PlaceScrollBars();
        update();
    } else {
        const QRect first = RowArea(change.firstRow);
        const QRect last = RowArea(change.lastRow);
        if (first.isEmpty() && last.isEmpty() && change.firstRow != change.lastRow)
            update();
        else
            update(first.united(last));
    }
    AnnounceRow();
}

QRect GridCanvas::RowArea(Long row) const
{
    const GridAxis& axis = model_.RowAxis();
    if (row < 0 || row >= axis.Count() || (row >= axis.Fixed() && row < axis.First()))
        return QRect();
    const Long start = axis.Start(row);
    const Twips origin = model_.State().top;
    const int top = PixelOf(origin, start);
    const int bottom = PixelOf(origin, start + axis.Size(row));
    return QRect(0, top, width(), bottom - top).intersected(rect());
}

QRect GridCanvas::CellArea(Long row, Long col) const
{
    const GridAxis& axis = model_.ColumnAxis();
    const Long start = axis.Start(col);
    const int left = PixelOf(model_.State().left, start);
    const int right = PixelOf(model_.State().left, start + axis.Size(col));
    const QRect line = RowArea(row);
    return QRect(left, line.top(), right - left, line.height());
}

std::vector<GridCanvas::Span> GridCanvas::ColumnsOnShow() const
{
    return SpansOnShow(model_.ColumnAxis(), model_.State().left, width());
}

std::vector<GridCanvas::Span> GridCanvas::RowsOnShow() const
{
    return SpansOnShow(model_.RowAxis(), model_.State().top, height());
}

std::vector<GridCanvas::Span> GridCanvas::SpansOnShow(const GridAxis& axis, Twips origin, int limit) const
{
    std::vector<Span> spans;
    Long at = 0;
    const auto add = [&](Long index) {
        const int start = PixelOf(origin, at);
        at += axis.Size(index);
        const int length = PixelOf(origin, at) - start;
        if (length > 0)
            spans.push_back({index, start, length});
        return start < limit;
    };
    for (Long index = 0; index < std::min(axis.Fixed(), axis.Count()); ++index)
        add(index);
    for (Long index = std::max(axis.First(), axis.Fixed()); index < axis.Count(); ++index) {
        if (!add(index))
            break;
    }
    return spans;
}

void GridCanvas::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const QRect dirty = event->rect();
    const QColor ground = GroundColor(model_.Look().backColorBkg, look::Paper);
    // Half-filled cells are never shown.
    if (!model_.IsPainted()) {
        painter.fillRect(dirty, ground);
        return;
    }
    const std::vector<Span> columns = ColumnsOnShow();
    const std::vector<Span> rows = RowsOnShow();
    const int right = columns.empty() ? 0 : columns.back().start + columns.back().length;
    const int bottom = rows.empty() ? 0 : rows.back().start + rows.back().length;
    if (dirty.right() >= right)
        painter.fillRect(QRect(right, 0, width() - right, height()), ground);
    if (dirty.bottom() >= bottom)
        painter.fillRect(QRect(0, bottom, width(), height() - bottom), ground);
    for (const Span& row : rows) {
        if (event->region().intersects(QRect(0, row.start, width(), row.length)))
            PaintRow(painter, row, columns, dirty);
    }
    if (model_.Look().borderStyle != 0) {
        painter.setPen(QPen(look::Border, 1));
        painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

void GridCanvas::PaintRow(QPainter& painter, const Span& row, const std::vector<Span>& columns,
                          const QRect& dirty)
{
    for (const Span& column : columns) {
        const QRect area(column.start, row.start, column.length, row.length);
        if (area.intersects(dirty))
            PaintCell(painter, row.index, column.index, area);
    }
    if (!columns.empty())
        PaintMark(painter, row, columns.front().start, columns.back().start + columns.back().length);
}

bool GridCanvas::IsChosen(Long row) const
{
    const bool choosesRows = model_.Design().selectionMode == 1;
    return choosesRows && row == model_.Cursor().row && row >= model_.RowAxis().Fixed();
}

// The form decides the colours of rows, so that the current one may be the palest. Where a click chooses the
// row, a frame tells it from the others, elsewhere a bar while the keys are here.
void GridCanvas::PaintMark(QPainter& painter, const Span& row, int left, int right)
{
    const bool isCursor = row.index == model_.Cursor().row && row.index >= model_.RowAxis().Fixed();
    if (isCursor && hasFocus())
        painter.fillRect(QRect(left, row.start, 3, row.length), look::Accent);
    if (!IsChosen(row.index))
        return;
    painter.setPen(QPen(look::Accent, 2));
    painter.setBrush(Qt::NoBrush);
    const int end = std::min(right, vertical_->isVisibleTo(this) ? vertical_->x() : width());
    painter.drawRect(QRect(left + 1, row.start + 1, end - left - 2, row.length - 2));
}

void GridCanvas::PaintCell(QPainter& painter, Long row, Long col, const QRect& area)
{
    const QColor ground = CellGround(model_.BackColorOf(row, col));
    painter.fillRect(area, ground);
    const toolkit::CellLook& look = model_.LookOfCell(row, col);
    if (look.picture != 0)
        PaintCellPicture(painter, look, model_.PictureOfCell(row, col), area);
    const Text& text = model_.CellText(row, col);
    if (!text.empty()) {
        painter.setPen(InkColor(model_.ForeColorOf(row, col), look::Ink, ground));
        const QRect inside = area.adjusted(CellPadding, 1, -CellPadding, -1);
        text_.Paint(painter, text, inside, AlignmentOf(col, text), look.bold || IsChosen(row),
                    model_.Look().wordWrap);
    }
    PaintLines(painter, row, col, area);
}

void GridCanvas::PaintCellPicture(QPainter& painter, const toolkit::CellLook& look, const Text& name,
                                  const QRect& area)
{
    const QSizeF size(std::min(PictureSize.width(), area.width() - 4.0), PictureSize.height());
    const int column = std::min(look.pictureAlignment / 3, 2);
    const int line = look.pictureAlignment % 3;
    const double x = area.left() + (area.width() - size.width()) * column / 2.0;
    const double y = area.top() + (area.height() - size.height()) * line / 2.0;
    PaintPicture(painter, Picture{name}, QRectF(QPointF(x, y), size));
}

void GridCanvas::PaintLines(QPainter& painter, Long row, Long col, const QRect& area)
{
    const bool fixed = model_.IsFixed(row, col);
    const toolkit::GridLook& look = model_.Look();
    if ((fixed ? look.gridLinesFixed : look.gridLines) == 0)
        return;
    const QColor color = CellGround(fixed ? look.gridColorFixed : look.gridColor);
    const int width = std::max<int>(1, look.gridLineWidth);
    painter.fillRect(QRect(area.left(), area.bottom() - width + 1, area.width(), width), color);
    painter.fillRect(QRect(area.right() - width + 1, area.top(), width, area.height()), color);
}

Qt::Alignment GridCanvas::AlignmentOf(Long col, const Text& text) const
{
    const Integer alignment = model_.AlignmentOf(col);
    if (alignment < 0 || alignment > 8)
        return Qt::AlignVCenter | (IsNumeric(text) ? Qt::AlignRight : Qt::AlignLeft);
    static constexpr Qt::Alignment across[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    static constexpr Qt::Alignment down[] = {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom};
    return across[alignment / 3] | down[alignment % 3];
}

void GridCanvas::resizeEvent(QResizeEvent*) { PlaceScrollBars(); }

// A bar shows where the design wants one and the cells do not fit.
void GridCanvas::PlaceScrollBars()
{
    constexpr int thickness = 14;
    placingBars_ = true;
    const auto set = [](QScrollBar* bar, bool wanted, const GridAxis& axis, int window) {
        const Long fit = axis.PageSize(static_cast<Long>(window * TwipsOfPixel));
        const Long free = axis.Count() - axis.Fixed();
        const bool needed = wanted && (free > fit || axis.First() > axis.Fixed());
        bar->setVisible(needed);
        if (!needed)
            return;
        bar->setRange(0, std::max<Long>(0, free - fit));
        bar->setPageStep(std::max<Long>(1, fit));
        bar->setValue(std::max<Long>(0, axis.First() - axis.Fixed()));
    };
    set(vertical_, model_.Look().scrollBars & 2, model_.RowAxis(), height());
    set(horizontal_, model_.Look().scrollBars & 1, model_.ColumnAxis(), width());
    const int below = horizontal_->isVisibleTo(this) ? thickness : 0;
    const int beside = vertical_->isVisibleTo(this) ? thickness : 0;
    vertical_->setGeometry(width() - thickness, 0, thickness, height() - below);
    horizontal_->setGeometry(0, height() - thickness, width() - beside, thickness);
    placingBars_ = false;
}

void GridCanvas::ScrollTo()
{
    if (placingBars_)
        return;
    const Long row = vertical_->isVisibleTo(this) ? vertical_->value() + model_.RowAxis().Fixed()
                                                  : model_.RowAxis().First();
    const Long col = horizontal_->isVisibleTo(this) ? horizontal_->value() + model_.ColumnAxis().Fixed()
                                                    : model_.ColumnAxis().First();
    model_.UserScrolls(row, col);
}

QString GridCanvas::RowAsText(Long row) const
{
    if (row < 0 || row >= model_.RowAxis().Count())
        return QString();
    QStringList parts;
    for (Long col = 0; col < model_.ColumnAxis().Count(); ++col) {
        if (model_.ColumnAxis().Size(col) == 0)
            continue;
        QString text = FromText(model_.CellText(row, col));
        if (text.isEmpty())
            text = PictureText(Picture{model_.PictureOfCell(row, col)});
        const QString head = model_.RowAxis().Fixed() > 0 && row > 0
            ? FromText(model_.CellText(0, col)).replace(QLatin1String("\r\n"), QLatin1String(" "))
            : QString();
        if (!text.isEmpty())
            parts.append(head.isEmpty() ? text : head + QStringLiteral(": ") + text);
    }
    return parts.join(QStringLiteral(", "));
}

void GridCanvas::AnnounceRow()
{
    const Long row = model_.Cursor().row;
    if (row == announcedRow_ || !QAccessible::isActive())
        return;
    announcedRow_ = row;
    QAccessibleValueChangeEvent change(this, RowAsText(row));
    QAccessible::updateAccessibility(&change);
}

} // namespace kova::qt
