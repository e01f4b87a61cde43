#include "toolkits/qt/picture_box.hpp"

#include "toolkits/qt/theme.hpp"

#include <QPainter>

namespace kova::qt {

// Where it covers its whole area, nothing below it needs painting.
PanelWindow::PanelWindow(QWidget* parent) : PlainPanel(parent) { setAttribute(Qt::WA_OpaquePaintEvent); }

void PanelWindow::SetGround(const QColor& ground)
{
    ground_ = ground;
    update();
}

void PanelWindow::SetCorners(double radius)
{
    radius_ = radius;
    setAttribute(Qt::WA_OpaquePaintEvent, radius <= 0);
    update();
}

void PanelWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (radius_ <= 0) {
        painter.fillRect(rect(), ground_);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ground_.darker(112), 1));
    painter.setBrush(ground_);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius_, radius_);
}

void PictureBoxView::ShowLook() { Shown().SetGround(GroundColor(Core().Design().backColor, look::Paper)); }

} // namespace kova::qt
