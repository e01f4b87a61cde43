#include "host/shell/tab_row.hpp"

#include "host/shell/news_bar.hpp"
#include "screens/refusal_label.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QToolButton>

#include <utility>

namespace kova::host {

namespace {

constexpr int RowHeight = 30;
constexpr int WidestName = 240;

} // namespace

TabRow::TabRow(QWidget* parent)
    : QWidget(parent),
      tabs_(new screens::Tabs(QStringLiteral("Áreas do programa"), this)),
      news_(new NewsBar(this)),
      shop_(new QLabel(this)),
      user_(new QToolButton(this)),
      button_(new QToolButton(this)),
      menu_(new QMenu(this))
{
    setFixedHeight(RowHeight);
    setObjectName(QStringLiteral("barra"));
    shop_->setObjectName(QStringLiteral("loja"));
    user_->setObjectName(QStringLiteral("usuario"));
    shop_->setTextFormat(Qt::PlainText);
    screens::ColourAsRefusal(*shop_);
    QFont bold = shop_->font();
    bold.setBold(true);
    shop_->setFont(bold);

    user_->setAutoRaise(true);
    user_->setFocusPolicy(Qt::NoFocus);
    user_->installEventFilter(this);
    connect(user_, &QToolButton::clicked, this, [this] {
        if (change_)
            change_();
    });

    button_->setObjectName(QStringLiteral("menu"));
    button_->setText(QStringLiteral("Menu"));
    button_->setToolTip(QStringLiteral("Menu do programa (F10)"));
    button_->setAutoRaise(true);
    button_->setFocusPolicy(Qt::TabFocus);
    button_->setPopupMode(QToolButton::InstantPopup);
    button_->setMenu(menu_);

    // The agenda is the first one.
    connect(tabs_, &QTabBar::currentChanged, this, [this](int tab) { news_->SetOnShow(tab == 0); });

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 6, 0);
    layout->setSpacing(12);
    layout->addWidget(tabs_);
    layout->addWidget(news_, 1);
    layout->addWidget(shop_);
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
    name_ = name;
    ShowUser();
}

void TabRow::OfferChange(std::function<void()> change)
{
    change_ = std::move(change);
    user_->setFocusPolicy(Qt::TabFocus);
    ShowUser();
}

void TabRow::ShowUser()
{
    const QString shown = user_->fontMetrics().elidedText(name_, Qt::ElideRight, WidestName);
    const QString whole = shown == name_ ? QString() : name_;
    const QString offer = QStringLiteral("Trocar usuário (Ctrl+Shift+U)");
    user_->setText(QString(shown).replace(QLatin1Char('&'), QLatin1String("&&")));
    if (!change_)
        user_->setToolTip(whole);
    else
        user_->setToolTip(whole.isEmpty() ? offer : whole + QLatin1Char('\n') + offer);
    user_->setAccessibleName(QStringLiteral("Usuário: ") + name_);
    user_->setAccessibleDescription(change_ ? offer : QString());
    user_->setVisible(!name_.isEmpty());
}

bool TabRow::eventFilter(QObject* object, QEvent* event)
{
    const QEvent::Type type = event->type();
    const bool isPress =
        type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick || type == QEvent::HoverEnter;
    return object == user_ && !change_ && isPress;
}

void TabRow::OpenMenu() { button_->showMenu(); }

void TabRow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), qt::look::Band);
    painter.fillRect(QRect(0, height() - 1, width(), 1), qt::look::Rule);
}

} // namespace kova::host
