// How a timetable is drawn.

#include "timetable/timetable_view.hpp"

#include "toolkits/qt/look/icons.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace kova::timetable {

namespace {

constexpr int MinutesOfHour = 60;
constexpr int RoomAtText = 4, BarOfStatus = 4, IconSize = 15;
constexpr int Attended = 2, Cancelled = 3, AttendedWithPreSale = 4;

/// The list's icon for it, whose colour the bar at the block's left edge has too; the block's text says the
/// same in words.
std::string_view IconOfStatus(int status)
{
    switch (status) {
    case Attended: return "atendido";
    case Cancelled: return "cancelado";
    case AttendedWithPreSale: return "pre_venda";
    default: return "agendado";
    }
}

QString DayOf(Date date)
{
    static const char* const Days[] = {"dom", "seg", "ter", "qua", "qui", "sex", "sáb"};
    return QString::fromUtf8(Days[Weekday(date) - 1]) + QLatin1Char(' ')
        + QString::fromStdString(FormatDate(date)).left(5);
}

} // namespace

void TimetableView::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    painter.fillRect(event->rect(), qt::look::Paper);
    if (measures_.columns == 0)
        return;
    const QRect seen = event->rect().translated(Scrolled());
    painter.save();
    painter.translate(-Scrolled());
    PaintGround(painter, seen);
    PaintBlocks(painter, seen);
    PaintNow(painter);
    PaintCursor(painter);
    PaintShift(painter);
    painter.restore();
    PaintHours(painter, seen);
    PaintNames(painter, seen);
}

void TimetableView::PaintGround(QPainter& painter, const QRect& seen) const
{
    const int first = std::max(0, measures_.ColumnAt(std::max(seen.left(), measures_.hoursWidth)));
    for (int column = first; column < measures_.columns && measures_.Left(column) <= seen.right(); ++column) {
        for (const family::ClosedPart& closed : blocks_.Columns()[static_cast<std::size_t>(column)].closed) {
            const QRect rect = measures_.Part(column, closed.part);
            painter.fillRect(rect, qt::look::LockedPaper);
            painter.fillRect(rect, QBrush(qt::look::Rule, Qt::BDiagPattern));
        }
    }
    for (int minute = 0; minute <= GridMeasures::MinutesOfDay; minute += measures_.step) {
        const int top = measures_.Top(minute);
        if (top < seen.top() || top > seen.bottom())
            continue;
        painter.setPen(minute % MinutesOfHour == 0 ? qt::look::Border : qt::look::Rule);
        painter.drawLine(seen.left(), top, seen.right(), top);
    }
    painter.setPen(qt::look::Border);
    for (int column = first; column <= measures_.columns; ++column)
        painter.drawLine(measures_.Left(column), seen.top(), measures_.Left(column), seen.bottom());
}

void TimetableView::PaintBlocks(QPainter& painter, const QRect& seen) const
{
    const int first = std::max(0, measures_.ColumnAt(std::max(seen.left(), measures_.hoursWidth)));
    for (int column = first; column < measures_.columns && measures_.Left(column) <= seen.right(); ++column) {
        const BlockModel::Range rows = blocks_.RowsOf(column);
        for (int row = rows.first; row < rows.end; ++row) {
            const QRect rect =
                measures_.Block(column, blocks_.Block(row).part, lanes_[static_cast<std::size_t>(row)]);
            if (rect.intersects(seen))
                PaintBlock(painter, row, rect);
        }
    }
}

void TimetableView::PaintBlock(QPainter& painter, int row, const QRect& rect) const
{
    const int status = blocks_.Block(row).row.status;
    painter.fillRect(rect, qt::look::AccentTint);
    const QColor colour = qt::IconTint(IconOfStatus(status));
    painter.fillRect(QRect(rect.topLeft(), QSize(BarOfStatus, rect.height())), colour);
    painter.setPen(qt::look::Border);
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
    QFont font = painter.font();
    font.setStrikeOut(status == Cancelled);
    painter.setFont(font);
    painter.setPen(qt::look::Ink);
    const QFontMetrics metrics(font);
    const QRect icon(rect.right() - RoomAtText - IconSize, rect.top() + 2, IconSize, IconSize);
    qt::PaintIcon(painter, IconOfStatus(status), icon, colour);
    const QRect room = rect.adjusted(BarOfStatus + RoomAtText, 1, -RoomAtText, -1);
    // The first line leaves room for the icon.
    const QStringList& lines =
        LinesOf(row, {icon.left() - room.left() - 2, room.height()}, room.width(), metrics);
    int top = room.top();
    for (const QString& line : lines) {
        painter.drawText(QRect(room.left(), top, room.width(), metrics.height()),
                         Qt::AlignLeft | Qt::AlignVCenter, line);
        top += metrics.height();
    }
    font.setStrikeOut(false);
    painter.setFont(font);
}

/// Shortened once, and not at each step of a scroll.
const QStringList& TimetableView::LinesOf(int row, const QSize& first, int width,
                                          const QFontMetrics& metrics) const
{
    shortened_.resize(lanes_.size());
    Shortened& kept = shortened_[static_cast<std::size_t>(row)];
    if (kept.width == width && kept.height == first.height())
        return kept.lines;
    kept = {width, first.height(), {}};
    int height = metrics.height();
    for (const QString& line : blocks_.index(row).data(Qt::DisplayRole).toString().split(QLatin1Char('\n'))) {
        const int room = kept.lines.isEmpty() ? first.width() : width;
        if (!kept.lines.isEmpty() && height > first.height() + 1)
            break;
        kept.lines.append(metrics.elidedText(line, Qt::ElideRight, room));
        height += metrics.height();
    }
    return kept.lines;
}

void TimetableView::PaintNow(QPainter& painter) const
{
    if (!now_)
        return;
    const int top = measures_.Top(now_->time.hour * MinutesOfHour + now_->time.minute);
    // What it lies over stays readable.
    constexpr int SeenThrough = 150;
    QColor line = qt::look::Danger;
    line.setAlpha(SeenThrough);
    for (int column = 0; column < measures_.columns; ++column) {
        if (blocks_.Columns()[static_cast<std::size_t>(column)].date != now_->date)
            continue;
        painter.fillRect(QRect(measures_.Left(column), top - 1, measures_.columnWidth, 2), line);
    }
}

void TimetableView::PaintCursor(QPainter& painter) const
{
    const QModelIndex current = currentIndex();
    const QRect rect = current.isValid() ? visualRect(current).translated(Scrolled()) : PlaceRect();
    painter.setPen(QPen(hasFocus() ? qt::look::Accent : qt::look::MutedInk, 2));
    painter.drawRect(rect.adjusted(1, 1, -1, -1));
}

void TimetableView::PaintShift(QPainter& painter) const
{
    if (!shift_)
        return;
    const QRect rect = measures_.Part(shift_->column, shift_->part).adjusted(2, 1, -3, -1);
    QColor ground = qt::look::AccentTint;
    constexpr int HalfSeenThrough = 200;
    ground.setAlpha(HalfSeenThrough);
    painter.fillRect(rect, ground);
    painter.setPen(QPen(qt::look::Accent, 2, Qt::DashLine));
    painter.drawRect(rect);
    painter.setPen(qt::look::Ink);
    painter.drawText(rect.adjusted(RoomAtText, 1, -RoomAtText, -1), Qt::AlignLeft | Qt::AlignTop,
                     TextOfMinute(shift_->part.from) + QStringLiteral(" - ")
                         + TextOfMinute(shift_->part.until));
}

void TimetableView::PaintNames(QPainter& painter, const QRect& seen) const
{
    const QRect band(0, 0, viewport()->width(), measures_.namesHeight);
    painter.fillRect(band, qt::look::Paper);
    painter.setPen(qt::look::Border);
    painter.drawLine(band.bottomLeft(), band.bottomRight());
    painter.setClipRect(band.adjusted(measures_.hoursWidth, 0, 0, 0));
    const int half = (measures_.namesHeight - RoomAtText) / 2;
    for (int column = 0; column < measures_.columns; ++column) {
        const int left = measures_.Left(column) - horizontalOffset();
        if (left + measures_.columnWidth < 0 || left > seen.right())
            continue;
        const family::TimetableColumn& of = blocks_.Columns()[static_cast<std::size_t>(column)];
        QRect room(left + RoomAtText, 2, measures_.columnWidth - 2 * RoomAtText, half);
        QFont font = painter.font();
        font.setBold(true);
        painter.setFont(font);
        painter.setPen(qt::look::Ink);
        painter.drawText(
            room, Qt::AlignCenter,
            QFontMetrics(font).elidedText(QString::fromStdString(of.nickname), Qt::ElideRight, room.width()));
        font.setBold(false);
        painter.setFont(font);
        painter.setPen(qt::look::MutedInk);
        painter.drawText(room.translated(0, half), Qt::AlignCenter, DayOf(of.date));
    }
    painter.setClipping(false);
}

void TimetableView::PaintHours(QPainter& painter, const QRect&) const
{
    const QRect strip(0, 0, measures_.hoursWidth, viewport()->height());
    painter.fillRect(strip, qt::look::Paper);
    painter.setPen(qt::look::Border);
    painter.drawLine(strip.topRight(), strip.bottomRight());
    painter.setPen(qt::look::MutedInk);
    // As many as have room; whole hours always.
    const int each = std::max(measures_.step, measures_.step < MinutesOfHour / 2 ? MinutesOfHour / 2 : 0);
    for (int minute = 0; minute < GridMeasures::MinutesOfDay; minute += each) {
        const QRect room(0, measures_.Top(minute) - verticalOffset(), measures_.hoursWidth - RoomAtText,
                         measures_.lineHeight);
        if (room.bottom() >= 0 && room.top() <= strip.bottom())
            painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, TextOfMinute(minute));
    }
}

} // namespace kova::timetable
