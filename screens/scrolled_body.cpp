#include "screens/scrolled_body.hpp"

#include "screens/field_frame.hpp"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>

#include <algorithm>

namespace kova::screens {

namespace {

constexpr int RoomAround = 4;

/// With its label above it and the reason below.
QWidget& WholeFieldOf(QWidget& editor)
{
    auto* frame = dynamic_cast<FieldFrame*>(editor.parentWidget());
    return frame != nullptr ? *frame : editor;
}

} // namespace

ScrolledBody::ScrolledBody(QWidget* body, QWidget* parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setWidget(body);
    // The ground of the window or page shows.
    viewport()->setAutoFillBackground(false);
    body->setAutoFillBackground(false);
    connect(verticalScrollBar(), &QScrollBar::actionTriggered, this, [this] { sought_.clear(); });
    // What is pressed by a mouse stays below it.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now != nullptr && widget()->isAncestorOf(now) && QApplication::mouseButtons() == Qt::NoButton)
            Reveal(WholeFieldOf(*now));
    });
}

QSize ScrolledBody::minimumSizeHint() const
{
    const int width = widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
    return {width, QScrollArea::minimumSizeHint().height()};
}

void ScrolledBody::Reveal(QWidget& part)
{
    sought_ = &part;
    Seek();
}

// The beginning of the body stays in sight with what it has room for; a part that is higher than what is seen
// shows its own.
void ScrolledBody::Seek()
{
    if (!sought_ || !sought_->isVisible() || !widget()->isAncestorOf(sought_))
        return;
    const int top = sought_->mapTo(widget(), QPoint(0, 0)).y() - RoomAround;
    const int beyond = top + sought_->height() + 2 * RoomAround - viewport()->height();
    QScrollBar& bar = *verticalScrollBar();
    bar.setValue(beyond <= 0 ? 0 : std::min(std::max(bar.value(), beyond), top));
}

bool ScrolledBody::event(QEvent* event)
{
    const bool isDone = QScrollArea::event(event);
    if (event->type() == QEvent::LayoutRequest)
        Seek();
    return isDone;
}

void ScrolledBody::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    Seek();
}

void ScrolledBody::wheelEvent(QWheelEvent* event)
{
    sought_.clear();
    QScrollArea::wheelEvent(event);
}

void RevealInBody(QWidget& part)
{
    for (QWidget* around = part.parentWidget(); around != nullptr; around = around->parentWidget()) {
        if (auto* body = dynamic_cast<ScrolledBody*>(around))
            return body->Reveal(part);
    }
}

} // namespace kova::screens
