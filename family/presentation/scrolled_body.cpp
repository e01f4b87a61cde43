#include "family/presentation/scrolled_body.hpp"

#include <QDialog>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

namespace kova::family {

ScrolledBody::ScrolledBody(QLayout* content, QWidget* parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    auto* body = new QWidget;
    content->setContentsMargins(0, 0, 0, 0);
    body->setLayout(content);
    setWidget(body);
    // The window's own ground shows.
    viewport()->setAutoFillBackground(false);
    body->setAutoFillBackground(false);
}

QSize ScrolledBody::sizeHint() const { return widget()->sizeHint(); }

QSize RoomOnScreen(const QWidget& near)
{
    constexpr QSize frame(12, 44);
    return near.screen()->availableGeometry().size() - frame;
}

void FitToScreen(QDialog& window, const ScrolledBody& body)
{
    const QSize room = RoomOnScreen(window);
    const QSize around = window.sizeHint() - body.sizeHint();
    const QLayout& content = *body.widget()->layout();
    int width = std::max(window.sizeHint().width(), window.minimumWidth());
    const int inside = std::min(width, room.width()) - around.width();
    const int height = around.height()
        + (content.hasHeightForWidth() ? content.totalHeightForWidth(inside)
                                       : content.totalSizeHint().height());
    if (height > room.height())
        width += body.verticalScrollBar()->sizeHint().width();
    window.resize(QSize(width, height).boundedTo(room));
}

} // namespace kova::family
