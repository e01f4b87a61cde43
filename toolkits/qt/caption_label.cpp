#include "toolkits/qt/caption_label.hpp"

#include "toolkits/qt/laid_out_text.hpp"

#include <QPainter>
#include <QStyle>

namespace kova::qt {

void CaptionLabel::paintEvent(QPaintEvent* event)
{
    if (buddy() || wordWrap() || !isEnabled()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.setFont(font());
    const QStaticText& caption = LaidOutText(text(), font());
    const QSize size = caption.size().toSize();
    const QRect place = QStyle::alignedRect(layoutDirection(), alignment(), size, contentsRect());
    painter.drawStaticText(place.topLeft(), caption);
}

} // namespace kova::qt
