#include "host/shell/tab_row.hpp"

#include "screens/refusal_label.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QToolButton>

namespace kova::host {

namespace {

constexpr int RowHeight = 30;
constexpr int WidestName = 240;

} // namespace

TabRow::TabRow(QWidget* parent)
    : QWidget(parent),
      tabs_(new screens::Tabs(QStringLiteral("Áreas do programa"), this)),
      shop_(new QLabel(this)),
      user_(new QLabel(this)),
      button_(new QToolButton(this)),
      menu_(new QMenu(this))
{
    setFixedHeight(RowHeight);
    setObjectName(QStringLiteral("barra"));
    shop_->setObjectName(QStringLiteral("loja"));
    user_->setObjectName(QStringLiteral("usuario"));
    for (QLabel* label : {shop_, user_})
        label->setTextFormat(Qt::PlainText);
    screens::ColourAsRefusal(*shop_);
    QFont bold = shop_->font();
    bold.setBold(true);
    shop_->setFont(bold);

    button_->setObjectName(QStringLiteral("menu"));
    button_->setText(QStringLiteral("Menu"));
    button_->setToolTip(QStringLiteral("Menu do programa (F10)"));
    button_->setAutoRaise(true);
    button_->setFocusPolicy(Qt::TabFocus);
    button_->setPopupMode(QToolButton::InstantPopup);
    button_->setMenu(menu_);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 6, 0);
    layout->setSpacing(12);
    layout->addWidget(tabs_);
    layout->addStretch(1);
    layout->addWidget(shop_);
    layout->addStretch(1);
    layout->addWidget(user_);
    layout->addWidget(button_);
}

void TabRow::TellShop(const QString& text)
{
    shop_->setText(text);
    shop_->setVisible(!text.isEmpty());
}

void TabRow::TellUser(const QString& name)
{
    user_->setText(user_->fontMetrics().elidedText(name, Qt::ElideRight, WidestName));
    user_->setToolTip(user_->text() == name ? QString() : name);
    user_->setVisible(!name.isEmpty());
}

void TabRow::OpenMenu() { button_->showMenu(); }

void TabRow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), qt::look::Band);
    painter.fillRect(QRect(0, height() - 1, width(), 1), qt::look::Rule);
}

} // namespace kova::host
