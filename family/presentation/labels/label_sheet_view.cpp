#include "family/presentation/labels/label_sheet_view.hpp"

#include "reports/qt/page_painter.hpp"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace kova::family {

namespace {

constexpr int Frame = 6;
constexpr double CornerTwips = 120.0;
// The sheet is white paper in every look; what it lies on and the mark of the first label are the look's.
const QColor Used(214, 218, 223);
const QColor Edge(206, 210, 216);

QRectF ToRect(const reports::Box& box)
{
    return QRectF(static_cast<double>(box.left), static_cast<double>(box.top), static_cast<double>(box.width),
                  static_cast<double>(box.height));
}

QPen Pen(const QColor& color, double width)
{
    QPen pen(color, width);
    pen.setCosmetic(true);
    return pen;
}

} // namespace

LabelSheetView::LabelSheetView(QWidget* parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(220, 300);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize LabelSheetView::sizeHint() const { return QSize(380, 520); }

void LabelSheetView::Show(const LabelRun& run, const reports::Document& pages)
{
    run_ = run;
    pages_ = &pages;
    setAccessibleDescription(QStringLiteral("Linha %1, coluna %2")
                                 .arg(run.first / run.sheet->columns + 1)
                                 .arg(run.first % run.sheet->columns + 1));
    ShowSheet(sheet_);
}

void LabelSheetView::ShowSheet(int sheet)
{
    sheet_ = std::clamp(sheet, 0, static_cast<int>(pages_->pages.size()) - 1);
    update();
}

double LabelSheetView::PixelsOfTwip() const
{
    return std::min((width() - 2 * Frame) / static_cast<double>(pages_->paperWidth),
                    (height() - 2 * Frame) / static_cast<double>(pages_->paperHeight));
}

QPointF LabelSheetView::Corner() const
{
    const QSizeF paper(static_cast<double>(pages_->paperWidth), static_cast<double>(pages_->paperHeight));
    const QSizeF rest = QSizeF(size()) - paper * PixelsOfTwip();
    return QPointF(rest.width() / 2, rest.height() / 2);
}

void LabelSheetView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window).darker(105));
    if (!pages_)
        return;
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.translate(Corner());
    painter.scale(PixelsOfTwip(), PixelsOfTwip());
    painter.fillRect(
        QRectF(0, 0, static_cast<double>(pages_->paperWidth), static_cast<double>(pages_->paperHeight)),
        Qt::white);
    PaintPlaces(painter);
    paper::PaintPage(painter, pages_->pages[static_cast<std::size_t>(sheet_)]);
    painter.resetTransform();
    if (!hasFocus())
        return;
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void LabelSheetView::PaintPlaces(QPainter& painter) const
{
    for (int position = 0; position < run_.sheet->Labels(); ++position)
        PaintPlace(painter, position);
}

void LabelSheetView::PaintPlace(QPainter& painter, int position) const
{
    const bool isFirst = sheet_ == 0 && position == run_.first;
    const bool isUsed = sheet_ == 0 && position < run_.first;
    painter.setPen(isFirst ? Pen(palette().color(QPalette::Highlight), hasFocus() ? 2.5 : 1.5)
                           : Pen(Edge, 1));
    painter.setBrush(isUsed ? Used : QColor(Qt::white));
    painter.drawRoundedRect(ToRect(BoxOfLabel(*run_.sheet, position)), CornerTwips, CornerTwips);
}

void LabelSheetView::Choose(int position)
{
    if (sheet_ == 0 && position >= 0 && position < run_.sheet->Labels())
        chosen(position);
}

void LabelSheetView::mousePressEvent(QMouseEvent* event)
{
    const QPointF at = (event->position() - Corner()) / PixelsOfTwip();
    for (int position = 0; position < run_.sheet->Labels(); ++position) {
        if (ToRect(BoxOfLabel(*run_.sheet, position)).contains(at))
            return Choose(position);
    }
}

void LabelSheetView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left: return Choose(run_.first - 1);
    case Qt::Key_Right: return Choose(run_.first + 1);
    case Qt::Key_Up: return Choose(run_.first - run_.sheet->columns);
    case Qt::Key_Down: return Choose(run_.first + run_.sheet->columns);
    case Qt::Key_Home: return Choose(0);
    case Qt::Key_End: return Choose(run_.sheet->Labels() - 1);
    default: QWidget::keyPressEvent(event);
    }
}

void LabelSheetView::focusInEvent(QFocusEvent*) { update(); }

void LabelSheetView::focusOutEvent(QFocusEvent*) { update(); }

} // namespace kova::family
