#pragma once

#include "toolkits/qt/report/report_find.hpp"

#include <QAbstractScrollArea>

#include <functional>

namespace kova::qt {

/// The pages of a report, one below the other, on a grey ground. The document must outlive it.
class ReportCanvas : public QAbstractScrollArea {
public:
    ReportCanvas(const reports::Document& document, QWidget* parent);

    /// Hears of another page in view and of another size.
    std::function<void()> changed = [] {};

    /// The page in view, from 0.
    std::size_t CurrentPage() const { return page_; }
    /// Brings a page's top into view; a number beyond the last is the last.
    void ShowPage(std::size_t page);

    /// 1 is the size on paper, as far as the screen knows. Kept within 0.25 to 4; the place in view stays.
    double Zoom() const { return zoom_; }
    void Zoom(double zoom);
    void ZoomIn();
    void ZoomOut();
    /// As wide as the window; stays so when the window changes, until another size is chosen.
    void FitWidth();
    /// So that the page in view is seen whole; stays so in the same way.
    void FitPage();

    /// Marks texts; `current`, which counts in `matches`, stands out and comes into view.
    void Mark(std::vector<ReportMatch> matches, std::size_t current);
    void ClearMarks() { Mark({}, 0); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    /// Pixels of a page's picture.
    QSizeF PageSize() const;
    /// Where a page lies, in pixels of the viewport.
    QRectF PlaceOf(std::size_t page) const;
    double PixelsOfTwip() const;
    void FollowSize();
    void ChangeZoom(double zoom);
    std::size_t PageInView() const;
    void ShowMatch(const ReportMatch& match);
    void PaintSheet(QPainter& painter, std::size_t page) const;
    void PaintMarks(QPainter& painter, std::size_t page) const;

    const reports::Document& document_;
    std::size_t page_ = 0;
    double zoom_ = 1;
    /// What the window's size decides.
    enum class Fit { Nothing, Width, Page };
    Fit fit_ = Fit::Width;
    /// While code moves the pages: what comes into view is then known.
    bool isMoving_ = false;
    std::vector<ReportMatch> matches_;
    std::size_t currentMatch_ = 0;
};

} // namespace kova::qt
