#include "toolkits/qt/shape.hpp"

#include "toolkits/qt/look/theme.hpp"

#include <QPainter>

#include <algorithm>

namespace kova::qt {

ShapeWindow::ShapeWindow(const toolkit::ShapeModel& model, QWidget* parent) : QWidget(parent), model_(model)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ShapeWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const ControlDesign& design = model_.Design();
    const QColor line = GroundColor(design.foreColor, look::Rule);
    if (model_.IsRule()) {
        painter.fillRect(rect(), GroundColor(design.backColor, line));
        return;
    }
    if (design.backColor != -1)
        painter.fillRect(rect(), GroundColor(design.backColor, look::Paper));
    painter.setPen(QPen(line, 1));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

// A rule is never thinner than one pixel.
void ShapeView::ShowGeometry()
{
    WidgetView::ShowGeometry();
    Shown().resize(Shown().size().expandedTo(QSize(1, 1)));
}

} // namespace kova::qt
