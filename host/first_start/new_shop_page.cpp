#include "host/first_start/new_shop_page.hpp"

#include "agenda/contracts/failure.hpp"
#include "family/data/engine/database_failure.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/new_shop.hpp"
#include "family/users/kept_sign_in.hpp"
#include "family/users/who_enters.hpp"
#include "host/first_start/administrator_step.hpp"
#include "host/first_start/company_step.hpp"
#include "host/first_start/hours_step.hpp"
#include "host/first_start/services_step.hpp"
#include "screens/refusal_label.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QDir>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStackedWidget>

namespace kova::host {

namespace {

/// Of the only user that a new shop has. Where it cannot be read he is asked for his password again.
std::string EntryOfMaker(const std::string& file)
{
    try {
        const auto database = family::OpenDatabase(file);
        const auto users = family::UsersWhoEnter(*database);
        return users.size() == 1 ? family::SignInToken(*database, users.front().code) : std::string();
    } catch (const family::DatabaseFailure&) {
        return {};
    }
}

} // namespace

NewShopPage::NewShopPage(const std::string& user, const std::string& documents, QWidget* parent)
    : QWidget(parent),
      company_(new CompanyStep({user, documents}, this)),
      pages_(new QStackedWidget(this)),
      steps_{company_, new AdministratorStep(user, this), new ServicesStep(this), new HoursStep(this)},
      failure_(new screens::RefusalLabel(this)),
      next_(new QPushButton(this))
{
    for (NewShopStep* step : steps_)
        pages_->addWidget(step);
    failure_->setObjectName(QStringLiteral("falha"));
    auto* back = new QPushButton(QStringLiteral("&Voltar"), this);
    back->setObjectName(QStringLiteral("voltar"));
    next_->setObjectName(QStringLiteral("avancar"));

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(back);
    buttons->addStretch(1);
    buttons->addWidget(next_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(pages_, 1);
    layout->addWidget(failure_);
    layout->addLayout(buttons);
    connect(back, &QPushButton::clicked, this, [this] { GoBack(); });
    connect(next_, &QPushButton::clicked, this, [this] { GoOn(); });
    TurnTo(0);
}

NewShopStep& NewShopPage::Current() const
{
    return *steps_[static_cast<std::size_t>(pages_->currentIndex())];
}

void NewShopPage::TurnTo(int step)
{
    const bool isLast = step + 1 == pages_->count();
    pages_->setCurrentIndex(step);
    next_->setText(isLast ? QStringLiteral("&Criar a loja") : QStringLiteral("&Avançar"));
    failure_->Tell({});
    setFocusProxy(&Current());
    Current().setFocus();
}

void NewShopPage::GoBack()
{
    if (pages_->currentIndex() > 0)
        TurnTo(pages_->currentIndex() - 1);
    else
        onBack();
}

void NewShopPage::GoOn()
{
    failure_->Tell({});
    if (!Current().Accepts())
        return;
    if (pages_->currentIndex() + 1 < pages_->count())
        TurnTo(pages_->currentIndex() + 1);
    else
        Make();
}

void NewShopPage::Make()
{
    const std::string file = company_->File();
    try {
        family::NewShop shop;
        for (const NewShopStep* step : steps_)
            step->Fill(shop);
        QDir().mkpath(QFileInfo(QString::fromStdString(file)).absolutePath());
        family::CreateNewShop(file, shop);
    } catch (const Failure& failure) {
        return failure_->Tell(qt::Lines(failure.Description()));
    }
    onMade({file, EntryOfMaker(file)});
}

} // namespace kova::host
