#include "host/first_start/administrator_step.hpp"

#include "family/data/stores/new_shop.hpp"
#include "family/users/accounts.hpp"
#include "host/sign_in/secret_fields.hpp"
#include "screens/field_frame.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace kova::host {

AdministratorStep::AdministratorStep(const std::string& user, QWidget* parent) : NewShopStep(parent)
{
    auto* heading = new QLabel(QStringLiteral("Quem administra a loja"), this);
    heading->setFont(qt::MakeFont("Arial", 14, true));
    auto* explanation =
        new QLabel(QStringLiteral("É o primeiro usuário: entra com este nome e esta senha, pode fazer tudo, "
                                  "e cadastra os outros em Cadastros, Usuários."),
                   this);
    explanation->setWordWrap(true);
    auto* box = new QLineEdit;
    box->setObjectName(QStringLiteral("usuario"));
    box->setMaxLength(static_cast<int>(family::WidthOfUserName));
    box->setText(QString::fromStdString(user).left(box->maxLength()));
    name_ = new screens::FieldFrame(QStringLiteral("&Nome"), box, this, true);
    secrets_ = new SecretFields(SecretFields::Password::Required, this);
    connect(box, &QLineEdit::textEdited, name_, [this] { name_->Refuse({}); });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    for (QWidget* part : std::initializer_list<QWidget*>{heading, explanation, name_, secrets_})
        layout->addWidget(part);
    layout->addStretch(1);
    setFocusProxy(box);
}

std::string AdministratorStep::Name() const
{
    return static_cast<QLineEdit&>(name_->Editor()).text().simplified().toStdString();
}

bool AdministratorStep::Accepts()
{
    const bool acceptsSecrets = secrets_->Accepts();
    if (!Name().empty())
        return acceptsSecrets;
    name_->Refuse(QStringLiteral("Informe o nome de quem administra a loja."));
    name_->Editor().setFocus();
    return false;
}

void AdministratorStep::Fill(family::NewShop& shop) const
{
    shop.user = Name();
    const auto password = secrets_->NewPassword(), pin = secrets_->NewPin();
    if (password)
        shop.password = family::HashOf(*password, family::FrontDeskCost);
    if (pin)
        shop.pin = family::HashOf(*pin, family::FrontDeskCost);
}

} // namespace kova::host
