#include "toolkits/qt/caption_label.hpp"

#include "toolkits/qt/look/laid_out_text.hpp"

#include <QEvent>
#include <QPainter>
#include <QStyle>

namespace kova::qt {

void CaptionLabel::paintEvent(QPaintEvent* event)
{
    // Lines are aligned one by one, which a text laid out as a whole is not.
    const bool hasLines = text().contains(QLatin1Char('\n'));
    if (buddy() || wordWrap() || hasLines || !isEnabled()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.setFont(font());
    if (drawn_.text() != text())
        drawn_ = LaidOutText(text(), font());
    const QSize size = drawn_.size().toSize();
    const QRect place = QStyle::alignedRect(layoutDirection(), alignment(), size, contentsRect());
    painter.drawStaticText(place.topLeft(), drawn_);
}

void CaptionLabel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        drawn_ = QStaticText();
    QLabel::changeEvent(event);
}

} // namespace kova::qt
