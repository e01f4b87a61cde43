#include "host/shell/news_bar.hpp"

#include <QAccessibleWidget>
#include <QPainter>
#include <QSizePolicy>

#include <algorithm>

namespace kova::host {

namespace {

constexpr QColor Background(255, 244, 204), Ink(0, 0, 0);
constexpr int Inset = 4, RoomBesideText = 10, Rounding = 4;

/// A message that can be pressed: screen readers say those that appear, wherever the keyboard is.
class NewsBarAccessible : public QAccessibleWidget {
public:
    explicit NewsBarAccessible(NewsBar& bar) : QAccessibleWidget(&bar, QAccessible::AlertMessage), bar_(bar)
    {
    }

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override
    {
        if (action == pressAction())
            bar_.click();
    }

private:
    NewsBar& bar_;
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object)
{
    auto* bar = dynamic_cast<NewsBar*>(object);
    return bar != nullptr ? new NewsBarAccessible(*bar) : nullptr;
}

} // namespace

NewsBar::NewsBar(QWidget* parent) : QAbstractButton(parent)
{
    QAccessible::installFactory(&MakeInterface);
    setObjectName(QStringLiteral("novidades"));
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    hide();
}

void NewsBar::Show(const QStringList& wordings)
{
    if (wordings == wordings_)
        return;
    wordings_ = wordings;
    const QString whole = wordings.isEmpty() ? QString() : wordings.first();
    setText(whole);
    setToolTip(whole);
    setAccessibleName(whole);
    update();
    Appear();
}

void NewsBar::SetOnShow(bool isOnShow)
{
    isOnShow_ = isOnShow;
    Appear();
}

void NewsBar::Appear()
{
    setVisible(isOnShow_ && !wordings_.isEmpty());
    if (isHidden())
        return;
    // Who cannot see it come is told at once, also of other words in the place of the former.
    for (const QAccessible::Event told : {QAccessible::ObjectShow, QAccessible::Alert}) {
        QAccessibleEvent event(this, told);
        QAccessible::updateAccessibility(&event);
    }
}

void NewsBar::paintEvent(QPaintEvent*)
{
    const int room = width() - 2 * RoomBesideText;
    const auto fits = [&](const QString& words) { return fontMetrics().horizontalAdvance(words) <= room; };
    const auto shown = std::ranges::find_if(wordings_, fits);
    const QString words = shown != wordings_.end()
        ? *shown
        : fontMetrics().elidedText(wordings_.value(wordings_.size() - 1), Qt::ElideRight, room);
    const int paper = std::min(width(), fontMetrics().horizontalAdvance(words) + 2 * RoomBesideText);
    const QRect place(0, Inset, paper, height() - 2 * Inset);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Background);
    painter.drawRoundedRect(place, Rounding, Rounding);
    painter.setPen(Ink);
    painter.drawText(place, Qt::AlignCenter | Qt::TextSingleLine, words);
}

} // namespace kova::host
