#include "toolkits/qt/report/report_canvas.hpp"

#include "reports/pages.hpp"
#include "reports/qt/page_painter.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <cmath>

namespace kova::qt {

namespace {

constexpr double Gap = 16;
constexpr std::array Steps{0.25, 0.5, 0.75, 1.0, 1.25, 1.5, 2.0, 3.0, 4.0};
const QColor MarkColor(255, 235, 130);
const QColor CurrentMarkColor(255, 178, 64);

/// How much of the place in view may be above the page that counts as being in view.
constexpr double ShareAbove = 0.4;

} // namespace

ReportCanvas::ReportCanvas(const reports::Document& document, QWidget* parent)
    : QAbstractScrollArea(parent), document_(document)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QStringLiteral("Páginas"));
    verticalScrollBar()->setSingleStep(40);
    horizontalScrollBar()->setSingleStep(40);
}

double ReportCanvas::PixelsOfTwip() const { return zoom_ / TwipsOfPixel; }

QSizeF ReportCanvas::PageSize() const
{
    return QSizeF(static_cast<double>(document_.paperWidth), static_cast<double>(document_.paperHeight))
        * PixelsOfTwip();
}

QRectF ReportCanvas::PlaceOf(std::size_t page) const
{
    const QSizeF size = PageSize();
    const double left = std::max(Gap, (viewport()->width() - size.width()) / 2);
    const double top = Gap + static_cast<double>(page) * (size.height() + Gap);
    return QRectF(QPointF(std::round(left) - horizontalScrollBar()->value(),
                          std::round(top) - verticalScrollBar()->value()),
                  size);
}

void ReportCanvas::FollowSize()
{
    const QSizeF page = PageSize();
    const double height = Gap + static_cast<double>(document_.pages.size()) * (page.height() + Gap);
    const double width = page.width() + 2 * Gap;
    verticalScrollBar()->setPageStep(viewport()->height());
    horizontalScrollBar()->setPageStep(viewport()->width());
    verticalScrollBar()->setRange(0, std::max(0, static_cast<int>(height) - viewport()->height()));
    horizontalScrollBar()->setRange(0, std::max(0, static_cast<int>(width) - viewport()->width()));
    viewport()->update();
}

void ReportCanvas::ShowPage(std::size_t page)
{
    page_ = std::min(page, document_.pages.size() - 1);
    isMoving_ = true;
    const double top = PlaceOf(page_).top() + verticalScrollBar()->value() - Gap / 2;
    verticalScrollBar()->setValue(static_cast<int>(top));
    isMoving_ = false;
    changed();
}

void ReportCanvas::Zoom(double zoom)
{
    fit_ = Fit::Nothing;
    ChangeZoom(zoom);
}

void ReportCanvas::ChangeZoom(double zoom)
{
    // The page's top stays where it is while it is in view, else what is in the middle.
    const QRectF before = PlaceOf(page_);
    const double anchor = before.top() >= 0 ? before.top() : viewport()->height() / 2.0;
    const double share = (anchor - before.top()) / before.height();
    zoom_ = std::clamp(zoom, Steps.front(), Steps.back());
    isMoving_ = true;
    FollowSize();
    const QRectF after = PlaceOf(page_);
    const double moved = after.top() + share * after.height() - anchor;
    verticalScrollBar()->setValue(verticalScrollBar()->value() + static_cast<int>(std::lround(moved)));
    isMoving_ = false;
    changed();
}

void ReportCanvas::ZoomIn()
{
    const auto* next = std::upper_bound(Steps.begin(), Steps.end(), zoom_ + 0.001);
    Zoom(next == Steps.end() ? Steps.back() : *next);
}

void ReportCanvas::ZoomOut()
{
    const auto* next = std::lower_bound(Steps.begin(), Steps.end(), zoom_ - 0.001);
    Zoom(next == Steps.begin() ? Steps.front() : *(next - 1));
}

void ReportCanvas::FitWidth()
{
    fit_ = Fit::Width;
    const double room = viewport()->width() - 2 * Gap;
    ChangeZoom(room * TwipsOfPixel / static_cast<double>(document_.paperWidth));
}

void ReportCanvas::FitPage()
{
    fit_ = Fit::Page;
    const double width = (viewport()->width() - 2 * Gap) / static_cast<double>(document_.paperWidth);
    const double height = (viewport()->height() - 2 * Gap) / static_cast<double>(document_.paperHeight);
    ChangeZoom(std::min(width, height) * TwipsOfPixel);
}

void ReportCanvas::Mark(std::vector<ReportMatch> matches, std::size_t current)
{
    matches_ = std::move(matches);
    currentMatch_ = current;
    if (!matches_.empty())
        ShowMatch(matches_[currentMatch_]);
    viewport()->update();
}

void ReportCanvas::ShowMatch(const ReportMatch& match)
{
    const reports::Box& box = document_.pages[match.page].items[match.item].box;
    const QRectF page = PlaceOf(match.page);
    const double scale = PixelsOfTwip();
    const double top = page.top() + static_cast<double>(box.top) * scale;
    const double left = page.left() + static_cast<double>(box.left) * scale;
    page_ = match.page;
    isMoving_ = true;
    const int lowest = viewport()->height() * 3 / 4;
    if (top < Gap || top > lowest)
        verticalScrollBar()->setValue(verticalScrollBar()->value()
                                      + static_cast<int>(top - viewport()->height() / 3.0));
    if (left < 0 || left > viewport()->width() * 3 / 4.0)
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + static_cast<int>(left - 4 * Gap));
    isMoving_ = false;
    changed();
}

std::size_t ReportCanvas::PageInView() const
{
    const double step = PageSize().height() + Gap;
    const double place = verticalScrollBar()->value() + ShareAbove * viewport()->height();
    const auto page = static_cast<std::size_t>(std::max(0.0, (place - Gap) / step));
    return std::min(page, document_.pages.size() - 1);
}

void ReportCanvas::scrollContentsBy(int, int)
{
    viewport()->update();
    if (isMoving_)
        return;
    page_ = PageInView();
    changed();
}

void ReportCanvas::resizeEvent(QResizeEvent*)
{
    switch (fit_) {
    case Fit::Width: return FitWidth();
    case Fit::Page: return FitPage();
    case Fit::Nothing: return FollowSize();
    }
}

void ReportCanvas::wheelEvent(QWheelEvent* event)
{
    if (!(event->modifiers() & Qt::ControlModifier))
        return QAbstractScrollArea::wheelEvent(event);
    if (event->angleDelta().y() > 0)
        ZoomIn();
    else if (event->angleDelta().y() < 0)
        ZoomOut();
}

// Pages are turned by the window, whatever has the focus.
void ReportCanvas::keyPressEvent(QKeyEvent* event)
{
    if (event->key() >= Qt::Key_Left && event->key() <= Qt::Key_Down)
        QAbstractScrollArea::keyPressEvent(event);
    else
        event->ignore();
}

void ReportCanvas::PaintMarks(QPainter& painter, std::size_t page) const
{
    for (const ReportMatch& match : matches_) {
        if (match.page != page)
            continue;
        const bool isCurrent = &match == &matches_[currentMatch_];
        for (const reports::Box& ink : InkOf(document_.pages[page].items[match.item]))
            painter.fillRect(QRectF(static_cast<double>(ink.left), static_cast<double>(ink.top),
                                    static_cast<double>(ink.width), static_cast<double>(ink.height)),
                             isCurrent ? CurrentMarkColor : MarkColor);
    }
}

void ReportCanvas::PaintSheet(QPainter& painter, std::size_t page) const
{
    const QRectF place = PlaceOf(page);
    painter.fillRect(place.adjusted(-1, -1, 1, 1), look::DeskEdge);
    painter.fillRect(place, Qt::white);
    painter.save();
    painter.setClipRect(place);
    painter.translate(place.topLeft());
    painter.scale(PixelsOfTwip(), PixelsOfTwip());
    PaintMarks(painter, page);
    paper::PaintPage(painter, document_.pages[page]);
    painter.restore();
}

void ReportCanvas::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.fillRect(event->rect(), look::Desk);
    const double step = PageSize().height() + Gap;
    auto page = static_cast<std::size_t>(std::max(0.0, (verticalScrollBar()->value() - Gap) / step));
    for (; page < document_.pages.size() && PlaceOf(page).top() < viewport()->height(); ++page)
        PaintSheet(painter, page);
}

} // namespace kova::qt
