#pragma once

#include "agenda/contracts/date_time.hpp"

#include <QWidget>

#include <functional>

namespace kova::qt {

/// The month sheet that drops down from a date box, in Portuguese, weeks from Sunday. Days, months and
/// years by mouse, wheel and keys (arrows, Page Up and Down, Home, End, Enter, Escape).
class CalendarPopup : public QWidget {
public:
    /// `choose` is called once with the day that the user takes, after the sheet has closed.
    CalendarPopup(QWidget* parent, Date today, std::function<void(Date)> choose);

    /// Opens below the field, or above it where the screen ends; `current` is marked.
    void Open(const QRect& fieldOnScreen, Date current);

    Date Current() const { return current_; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    enum class Spot { None, Previous, Next, Today, Day };
    struct Hit {
        Spot spot = Spot::None;
        Date day;
        bool operator==(const Hit&) const = default;
    };

    Date FirstDayShown() const;
    QRectF DayCell(int position) const;
    Hit HitAt(const QPointF& place) const;
    void MoveTo(Date day);
    void MoveByMonths(int months);
    void Choose(Date day);
    void PaintHead(QPainter& painter) const;
    void PaintDay(QPainter& painter, int position) const;
    void PaintFoot(QPainter& painter) const;

    Date today_;
    Date current_;
    Hit hover_;
    std::function<void(Date)> choose_;
};

} // namespace kova::qt
