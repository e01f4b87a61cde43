#include "toolkits/qt/picture_box.hpp"

#include "toolkits/common/form.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QPainter>

#include <algorithm>
#include <utility>

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

int PictureBoxView::Missing() const
{
    const toolkit::WidgetState& state = Core().State();
    if (Core().Container())
        return 0;
    const int below = Pixels(state.top + state.height) - Pixels(Core().GetForm().Inner().height);
    return std::max(0, below);
}

int PictureBoxView::TopInside(int top) const
{
    const int height = std::max(1, Pixels(Core().State().height));
    return top * (height - squeezed_) / height;
}

void PictureBoxView::ShowGeometry()
{
    // A fifth less and lines of nine points still stand clear of each other; what lies above the panel has
    // that much room below its own text.
    constexpr int leastParts = 5;
    constexpr int mostLifted = 10;
    const toolkit::WidgetState& state = Core().State();
    QRect area = PixelRect(state.left, state.top, state.width, state.height);
    const int missing = Missing();
    const int former = std::exchange(squeezed_, std::min(missing, area.height() / leastParts));
    area.setHeight(area.height() - squeezed_);
    area.translate(0, -std::min(missing - squeezed_, mostLifted));
    Shown().setGeometry(area);
    if (squeezed_ == former)
        return;
    for (const auto& widget : Core().GetForm().Widgets()) {
        if (widget->Container() == &Core() && widget->GetView())
            widget->GetView()->Update(toolkit::Aspect::Geometry);
    }
}

} // namespace kova::qt
