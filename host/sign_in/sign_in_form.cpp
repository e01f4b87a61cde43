#include "host/sign_in/sign_in_form.hpp"

#include "family/users/tries.hpp"
#include "host/sign_in/secret_box.hpp"
#include "screens/field_frame.hpp"
#include "screens/refusal_label.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace kova::host {

namespace {

constexpr int RoomBetweenFields = 10;
constexpr int LongestName = 1000;

QString WaitText(long long seconds) { return QString::fromStdString(family::WordsOfWait(seconds)); }

} // namespace

SignInForm::SignInForm(const std::vector<std::string>& names, const std::string& name, const QString& secret,
                       Look look, QWidget* parent)
    : QWidget(parent),
      name_(new QComboBox),
      secret_(new SecretBox(QStringLiteral("segredo"))),
      nameFrame_(new screens::FieldFrame(QStringLiteral("&Nome"), name_, this)),
      secretFrame_(new screens::FieldFrame(secret, secret_, this)),
      capitals_(new QLabel(QStringLiteral("Caps Lock está ligado."), this)),
      refusal_(new screens::RefusalLabel(this)),
      enter_(new QPushButton(QStringLiteral("&Entrar"), this)),
      everySecond_(new QTimer(this)),
      look_(std::move(look))
{
    name_->setObjectName(QStringLiteral("nome"));
    name_->setEditable(true);
    name_->setInsertPolicy(QComboBox::NoInsert);
    name_->setMinimumHeight(screens::BoxHeight);
    name_->lineEdit()->setMaxLength(LongestName);
    for (const std::string& one : names)
        name_->addItem(QString::fromStdString(one));
    name_->setCurrentIndex(name_->findText(QString::fromStdString(name)));
    name_->setEditText(QString::fromStdString(name));
    capitals_->setObjectName(QStringLiteral("maiusculas"));
    capitals_->hide();
    refusal_->setObjectName(QStringLiteral("recusa"));
    enter_->setObjectName(QStringLiteral("entrar"));
    enter_->setDefault(true);
    LayOut();
    Connect();
}

void SignInForm::LayOut()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(RoomBetweenFields);
    layout->addWidget(nameFrame_);
    layout->addWidget(secretFrame_);
    layout->addWidget(capitals_);
    layout->addWidget(refusal_);
}

void SignInForm::Connect()
{
    constexpr int Second = 1000;
    everySecond_->setInterval(Second);
    connect(everySecond_, &QTimer::timeout, this, [this] { CountDown(); });
    connect(enter_, &QPushButton::clicked, this, [this] { Try(); });
    // Whoever waits is not the one that another name is of.
    connect(name_, &QComboBox::editTextChanged, this, [this] {
        left_ = 0;
        Refuse({});
    });
    connect(secret_, &QLineEdit::textEdited, this, [this] {
        if (left_ == 0)
            Refuse({});
    });
    secret_->onCapitals = [this](bool isDown) { capitals_->setVisible(isDown); };
}

QString SignInForm::Name() const { return name_->currentText().trimmed(); }

void SignInForm::FocusNext() { (Name().isEmpty() ? name_->lineEdit() : secret_)->setFocus(); }

// What is not there is not tried: it would count as a wrong one.
void SignInForm::Try()
{
    if (isLooking_ || left_ > 0)
        return;
    FocusNext();
    if (Name().isEmpty())
        return Refuse(QStringLiteral("Informe ou escolha o nome."));
    if (secret_->text().isEmpty())
        return Refuse(QStringLiteral("Falta digitar: ") + secret_->accessibleName() + QLatin1Char('.'));
    isLooking_ = true;
    Refuse({});
    // It may be left before the answer comes.
    look_(name_->currentText().toStdString(), secret_->Take(),
          [form = QPointer<SignInForm>(this)](const family::SignInAnswer& answer) {
              if (form)
                  form->ShowAnswer(answer);
          });
}

void SignInForm::ShowAnswer(const family::SignInAnswer& answer)
{
    isLooking_ = false;
    if (answer.IsDone())
        return onEntered(answer);
    wait_ = left_ = answer.wait;
    if (left_ > 0)
        everySecond_->start();
    secret_->setFocus();
    Refuse(qt::Lines(answer.text));
}

void SignInForm::CountDown()
{
    if (left_ > 0)
        --left_;
    Refuse(left_ > 0 ? told_ : QString());
}

// What is told names the wait as it was at first.
void SignInForm::Refuse(const QString& text)
{
    told_ = text;
    if (left_ == 0)
        everySecond_->stop();
    refusal_->Tell(left_ > 0 ? QString(text).replace(WaitText(wait_), WaitText(left_)) : text);
    secret_->setAccessibleDescription(refusal_->text());
    Offer();
}

void SignInForm::Offer()
{
    enter_->setEnabled(!isLooking_ && left_ == 0);
    enter_->setText(isLooking_ ? QStringLiteral("Conferindo...") : QStringLiteral("&Entrar"));
}

} // namespace kova::host
