#include "host/first_start/welcome_page.hpp"

#include "screens/refusal_label.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace kova::host {

namespace {

constexpr int ChoiceWidth = 250;
constexpr int ChoiceHeight = 44;
constexpr double HeadingPoints = 16;

QLabel* PlainLabel(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QString ShownName(const RememberedShop& shop)
{
    const QString source = QString::fromStdString(shop.source);
    return shop.name.empty() ? source : QString::fromStdString(shop.name) + QStringLiteral("  -  ") + source;
}

} // namespace

WelcomePage::WelcomePage(const std::vector<RememberedShop>& shops, QWidget* parent)
    : QWidget(parent), told_(new screens::RefusalLabel(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(14);
    told_->setObjectName(QStringLiteral("recado"));
    layout->addWidget(told_);
    auto* heading = PlainLabel(QStringLiteral("Com que loja você quer trabalhar?"), this);
    heading->setFont(qt::MakeFont("Arial", HeadingPoints, true));
    layout->addWidget(heading);

    const auto raise = [this](std::function<void()> WelcomePage::*handler) {
        return [this, handler] { (this->*handler)(); };
    };
    connect(AddChoice(QStringLiteral("criar"), QStringLiteral("&Criar a minha loja"),
                      QStringLiteral("Para começar a usar: a empresa, quem atende, os serviços e os dias de "
                                     "funcionamento. Leva poucos minutos.")),
            &QPushButton::clicked, this, raise(&WelcomePage::onNew));
    connect(AddChoice(QStringLiteral("abrir"), QStringLiteral("&Abrir uma loja que já existe"),
                      QStringLiteral("Um arquivo deste computador, ou o banco de dados de um servidor, que "
                                     "vários postos usam ao mesmo tempo.")),
            &QPushButton::clicked, this, raise(&WelcomePage::onExisting));
    connect(
        AddChoice(QStringLiteral("demonstracao"), QStringLiteral("&Experimentar a demonstração"),
                  QStringLiteral("Uma loja inventada, com clientes e agendamentos, para conhecer o programa. "
                                 "Nada do que é marcado nela vale.")),
        &QPushButton::clicked, this, raise(&WelcomePage::onDemonstration));
    if (!shops.empty())
        AddShops(shops);
    layout->addStretch(1);
}

QPushButton* WelcomePage::AddChoice(const QString& name, const QString& title, const QString& explanation)
{
    auto* button = new QPushButton(title, this);
    button->setObjectName(name);
    button->setFixedSize(ChoiceWidth, ChoiceHeight);
    button->setAccessibleDescription(explanation);
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(button);
    row->addWidget(PlainLabel(explanation, this), 1);
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
    return button;
}

void WelcomePage::AddShops(const std::vector<RememberedShop>& shops)
{
    auto* title = new QLabel(QStringLiteral("&Lojas abertas antes neste computador (Enter abre):"), this);
    list_ = new QListWidget(this);
    list_->setObjectName(QStringLiteral("lojas"));
    list_->setAccessibleName(QStringLiteral("Lojas abertas antes neste computador"));
    title->setBuddy(list_);
    for (const RememberedShop& shop : shops) {
        auto* item = new QListWidgetItem(ShownName(shop), list_);
        item->setData(Qt::UserRole, QString::fromStdString(shop.source));
        item->setToolTip(QString::fromStdString(shop.source));
    }
    list_->setCurrentRow(0);
    connect(list_, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
        onRemembered(item->data(Qt::UserRole).toString().toStdString());
    });
    layout()->addWidget(title);
    layout()->addWidget(list_);
}

void WelcomePage::Tell(const QString& text) { told_->Tell(text); }

} // namespace kova::host
