#include "host/sign_in/secret_fields.hpp"

#include "host/sign_in/secret_box.hpp"
#include "screens/field_frame.hpp"

#include <QGridLayout>
#include <QLabel>

namespace kova::host {

namespace {

std::unique_ptr<family::Secret> SecretIn(const SecretBox& box)
{
    return box.text().isEmpty() ? nullptr : std::make_unique<family::Secret>(box.text().toStdString());
}

} // namespace

SecretFields::SecretFields(Password password, QWidget* parent)
    : QWidget(parent),
      password_(password),
      passwords_(AddPair(QStringLiteral("senha"), QStringLiteral("&Senha"),
                         QStringLiteral("A mesma senha, &outra vez"), password == Password::Required)),
      pins_(AddPair(QStringLiteral("pin"), QStringLiteral("P&IN, se quiser"),
                    QStringLiteral("O mesmo PIN, outra v&ez"), false)),
      capitals_(new QLabel(QStringLiteral("Caps Lock está ligado."), this))
{
    capitals_->setObjectName(QStringLiteral("maiusculas"));
    capitals_->hide();
    auto* hint = new QLabel(
        QStringLiteral(
            "Uma boa senha tem oito caracteres ou mais, como três palavras que só você juntaria. O "
            "PIN tem de quatro a oito algarismos e serve para trocar de usuário depressa; para "
            "abrir o programa é preciso a senha."),
        this);
    hint->setWordWrap(true);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(10);
    grid->addWidget(hint, 0, 0, 1, 2);
    grid->addWidget(passwords_.firstFrame, 1, 0);
    grid->addWidget(passwords_.secondFrame, 1, 1);
    grid->addWidget(pins_.firstFrame, 2, 0);
    grid->addWidget(pins_.secondFrame, 2, 1);
    grid->addWidget(capitals_, 3, 0, 1, 2);
    setFocusProxy(passwords_.first);
    for (SecretBox* box : {passwords_.first, passwords_.second})
        WatchCapitals(*box);
}

void SecretFields::WatchCapitals(SecretBox& box)
{
    box.onCapitals = [this](bool isDown) { capitals_->setVisible(isDown); };
}

SecretFields::Pair SecretFields::AddPair(const QString& name, const QString& label, const QString& again,
                                         bool isRequired)
{
    Pair pair{};
    pair.first = new SecretBox(name);
    pair.second = new SecretBox(name + QStringLiteral("DeNovo"));
    pair.firstFrame = new screens::FieldFrame(label, pair.first, this, isRequired);
    pair.secondFrame = new screens::FieldFrame(again, pair.second, this, isRequired);
    for (SecretBox* box : {pair.first, pair.second}) {
        connect(box, &QLineEdit::textEdited, this, [pair] {
            pair.firstFrame->Refuse({});
            pair.secondFrame->Refuse({});
        });
    }
    return pair;
}

bool SecretFields::Accepts()
{
    const bool isRequired = password_ == Password::Required;
    const bool takesPassword = AcceptsPair(passwords_, isRequired, &family::ObjectionToPassword,
                                           QStringLiteral("As duas senhas não são iguais."));
    const bool takesPin =
        AcceptsPair(pins_, false, &family::ObjectionToPin, QStringLiteral("Os dois PINs não são iguais."));
    for (const Pair* pair : {&passwords_, &pins_}) {
        if (!pair->firstFrame->IsRefused() && !pair->secondFrame->IsRefused())
            continue;
        (pair->firstFrame->IsRefused() ? pair->first : pair->second)->setFocus();
        break;
    }
    return takesPassword && takesPin;
}

bool SecretFields::AcceptsPair(const Pair& pair, bool isRequired, Objection objection, const QString& differs)
{
    pair.firstFrame->Refuse({});
    pair.secondFrame->Refuse({});
    const bool isLeft = pair.first->text().isEmpty() && pair.second->text().isEmpty();
    if (isLeft && !isRequired)
        return true;
    const std::string why = objection(family::Secret(pair.first->text().toStdString()));
    if (!why.empty())
        pair.firstFrame->Refuse(QString::fromStdString(why));
    else if (pair.first->text() != pair.second->text())
        pair.secondFrame->Refuse(differs);
    return !pair.firstFrame->IsRefused() && !pair.secondFrame->IsRefused();
}

void SecretFields::AskOnlyForPin()
{
    password_ = Password::Optional;
    for (SecretBox* box : {passwords_.first, passwords_.second}) {
        box->clear();
        box->setEnabled(false);
    }
    setFocusProxy(pins_.first);
}

std::unique_ptr<family::Secret> SecretFields::NewPassword() const { return SecretIn(*passwords_.first); }

std::unique_ptr<family::Secret> SecretFields::NewPin() const { return SecretIn(*pins_.first); }

} // namespace kova::host
