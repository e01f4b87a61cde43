#include "toolkits/qt/boxes/field_frame.hpp"

#include "toolkits/qt/boxes/line_edit.hpp"
#include "toolkits/qt/look/icons.hpp"
#include "toolkits/qt/look/painting.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace kova::qt {

namespace {

constexpr int Inset = 8;
constexpr int EndWidth = 30;

} // namespace

FieldFrame::FieldFrame(QWidget* parent) : QWidget(parent), editor_(new LineEdit(this)), paper_(look::Paper)
{
    setMouseTracking(true);
    setFocusProxy(editor_);
    editor_->installEventFilter(this);
}

void FieldFrame::SetEndIcon(const std::string& icon, const QString& name)
{
    endIcon_ = icon;
    setAccessibleDescription(name);
    PlaceEditor();
    update();
}

void FieldFrame::SetPaper(const QColor& paper)
{
    paper_ = paper;
    update();
}

void FieldFrame::SetLocked(bool locked)
{
    locked_ = locked;
    editor_->setReadOnly(locked_ || !open_);
    update();
}

void FieldFrame::SetOpen(bool open)
{
    open_ = open;
    editor_->setReadOnly(locked_ || !open_);
    editor_->setFocusPolicy(open_ ? Qt::StrongFocus : Qt::NoFocus);
    PlaceEditor();
    update();
}

QRectF FieldFrame::EndArea() const
{
    const int end = std::min(EndWidth, height());
    return !HasEnd() ? QRectF() : QRectF(width() - end, 0, end, height());
}

void FieldFrame::PlaceEditor()
{
    const int inset = std::min(Inset, width() / 8);
    const int end = !HasEnd() ? inset : static_cast<int>(EndArea().width());
    editor_->setGeometry(inset - 2, 2, std::max(0, width() - inset - end + 4), std::max(0, height() - 4));
}

void FieldFrame::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const FieldState state{IsOpen(), locked_, underMouse(), editor_->hasFocus()};
    PaintField(painter, rect(), state, paper_);
    if (!HasEnd())
        return;
    const QRectF area = EndArea();
    if (overEnd_)
        PaintPlate(painter, area.adjusted(1, 3, -3, -3), look::AccentTint, look::CornerRadius);
    const double size = std::min(18.0, area.height() - 6);
    const QPointF corner = area.center() - QPointF(size / 2 + 1, size / 2);
    PaintIcon(painter, endIcon_, QRectF(corner, QSizeF(size, size)), look::MutedInk);
}

void FieldFrame::resizeEvent(QResizeEvent*) { PlaceEditor(); }

void FieldFrame::enterEvent(QEnterEvent*) { update(); }

void FieldFrame::leaveEvent(QEvent*)
{
    overEnd_ = false;
    update();
}

void FieldFrame::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (EndArea().contains(event->position())) {
        if (endPressed)
            endPressed();
        return;
    }
    if (open_)
        editor_->EnterByPress();
}

void FieldFrame::mouseMoveEvent(QMouseEvent* event)
{
    const bool over = EndArea().contains(event->position());
    setCursor(over ? Qt::PointingHandCursor : Qt::ArrowCursor);
    if (over != overEnd_) {
        overEnd_ = over;
        update();
    }
}

void FieldFrame::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        PlaceEditor();
        update();
    }
}

bool FieldFrame::eventFilter(QObject* watched, QEvent* event)
{
    // The ring around it all is the frame's.
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    return QWidget::eventFilter(watched, event);
}

} // namespace kova::qt
