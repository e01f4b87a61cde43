#include "host/first_start/shop_question.hpp"

#include "host/first_start/existing_shop_page.hpp"
#include "host/first_start/new_shop_page.hpp"
#include "host/first_start/welcome_page.hpp"
#include "host/shell/icon.hpp"
#include "screens/scrolled_body.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace kova::host {

namespace {

constexpr QSize UsualSize(820, 600);
/// What the desktop's frame around a window takes, at most.
constexpr QSize Frame(16, 48);

} // namespace

ShopQuestion::ShopQuestion(const Surroundings& surroundings, QWidget* parent)
    : QDialog(parent), pages_(new QStackedWidget(this))
{
    setWindowTitle(QStringLiteral("Kovaris"));
    setWindowIcon(ApplicationIcon());
    setBackgroundRole(QPalette::Base);
    resize(UsualSize.boundedTo(screen()->availableSize() - Frame));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->addWidget(pages_);

    welcome_ = new WelcomePage(surroundings.remembered, this);
    auto* made = new NewShopPage(surroundings.user, surroundings.documents, this);
    auto* existing = new ExistingShopPage(surroundings.look, this);
    for (QWidget* page : std::initializer_list<QWidget*>{welcome_, made, existing})
        // On a small or magnified screen what has no room scrolls.
        pages_->addWidget(new screens::ScrolledBody(page));

    const auto turnTo = [this](QWidget* page) {
        pages_->setCurrentWidget(page->parentWidget()->parentWidget());
        page->setFocus();
    };
    const auto answer = [this](const std::string& source) { Answer({source, {}}); };
    welcome_->onNew = [=] {
        turnTo(made);
        made->Offered().setDefault(true);
    };
    welcome_->onExisting = [=] {
        turnTo(existing);
        existing->Offered().setDefault(true);
    };
    welcome_->onDemonstration = [=, demonstration = surroundings.demonstration] { answer(demonstration); };
    welcome_->onRemembered = answer;
    made->onBack = existing->onBack = [=, this] { turnTo(welcome_); };
    made->onMade = [this](const ChosenShop& shop) { Answer(shop); };
    existing->onChosen = answer;
}

void ShopQuestion::Tell(const std::string& text) { welcome_->Tell(qt::Lines(text)); }

void ShopQuestion::Answer(const ChosenShop& shop)
{
    chosen_ = shop;
    accept();
}

} // namespace kova::host
