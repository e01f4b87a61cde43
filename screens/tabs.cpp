#include "screens/tabs.hpp"

#include "toolkits/qt/look/painting.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QStylePainter>

namespace kova::screens {

namespace {

constexpr int Height = 30;
constexpr int RoomBesideText = 16;
constexpr int UnderlineHeight = 3;
/// Keeps focus rings apart from the edges.
constexpr QMargins RingMargins(3, 3, 3, 4);

} // namespace

Tabs::Tabs(const QString& name, QWidget* parent) : QTabBar(parent)
{
    setDrawBase(false);
    setExpanding(false);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(name);
}

QSize Tabs::tabSizeHint(int index) const
{
    QFont bold = font();
    bold.setBold(true);
    return {QFontMetrics(bold).horizontalAdvance(tabText(index)) + 2 * RoomBesideText, Height};
}

void Tabs::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    for (int index = 0; index < count(); ++index)
        PaintTab(painter, index);
}

void Tabs::PaintTab(QPainter& painter, int index) const
{
    const QRect place = tabRect(index);
    const bool isOnShow = index == currentIndex();
    QFont words = font();
    words.setBold(isOnShow);
    painter.setFont(words);
    painter.setPen(isOnShow ? qt::look::Ink : qt::look::MutedInk);
    painter.drawText(place, Qt::AlignCenter, tabText(index));
    if (isOnShow)
        painter.fillRect(
            QRect(place.left(), place.bottom() + 1 - UnderlineHeight, place.width(), UnderlineHeight),
            qt::look::Accent);
    if (isOnShow && hasFocus())
        qt::PaintFocusRing(painter, place.marginsRemoved(RingMargins), qt::look::Band);
}

} // namespace kova::screens
