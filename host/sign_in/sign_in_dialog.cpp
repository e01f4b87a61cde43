#include "host/sign_in/sign_in_dialog.hpp"

#include "host/shell/icon.hpp"
#include "screens/grows_with_contents.hpp"
#include "screens/plain_label.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kova::host {

namespace {

constexpr int Width = 420;
constexpr int IconSize = 48;
constexpr double HeadingPoints = 14;

} // namespace

SignInDialog::SignInDialog(const Question& question, SignInForm::Look look, QWidget* parent)
    : QDialog(parent),
      form_(new SignInForm(question.names, question.name,
                           question.takesPin ? QStringLiteral("&PIN ou senha") : QStringLiteral("&Senha"),
                           std::move(look), this)),
      keep_(new QCheckBox(QStringLiteral("Não perguntar neste &computador"), this)),
      mayLeave_(question.mayLeave)
{
    setObjectName(QStringLiteral("Entrada"));
    setWindowTitle(question.title);
    setWindowIcon(ApplicationIcon());
    setBackgroundRole(QPalette::Base);
    if (!mayLeave_)
        setWindowFlag(Qt::WindowCloseButtonHint, false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(14);
    AddHeading(question);
    layout->addWidget(form_);
    keep_->setObjectName(QStringLiteral("naoPerguntar"));
    keep_->setToolTip(
        QStringLiteral("Só vale enquanto houver um só usuário, e até que a senha mude. Quem usa este "
                       "computador com a mesma conta entra sem senha."));
    keep_->setVisible(question.mayKeep);
    layout->addWidget(keep_);
    layout->addStretch(1);
    AddButtons(question);
    form_->onEntered = [this](const family::SignInAnswer& answer) {
        accept();
        onEntered(answer, keep_->isVisibleTo(this) && keep_->isChecked());
    };
    setTabOrder(keep_, &form_->Offered());
    screens::GrowWithContents(*this, {Width, 0});
    form_->FocusNext();
}

void SignInDialog::AddHeading(const Question& question)
{
    auto* picture = new QLabel(this);
    picture->setPixmap(ApplicationIcon().pixmap(QSize(IconSize, IconSize), devicePixelRatioF()));
    QLabel* shop = screens::MakePlainLabel(QStringLiteral("loja"), this);
    shop->setText(question.shop);
    shop->setFont(qt::MakeFont("Arial", HeadingPoints, true));
    shop->setVisible(!question.shop.isEmpty());
    QLabel* why = screens::MakePlainLabel(QStringLiteral("motivo"), this);
    why->setText(question.why);
    auto* words = new QVBoxLayout;
    words->setSpacing(2);
    words->addWidget(shop);
    words->addWidget(why);
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(picture, 0, Qt::AlignTop);
    row->addLayout(words, 1);
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
}

void SignInDialog::AddButtons(const Question& question)
{
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(&form_->Offered());
    if (question.mayLeave) {
        auto* leave = new QPushButton(question.leave, this);
        leave->setObjectName(QStringLiteral("cancelar"));
        leave->setAutoDefault(false);
        connect(leave, &QPushButton::clicked, this, [this] { reject(); });
        row->addWidget(leave);
    }
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
}

void SignInDialog::reject()
{
    if (mayLeave_)
        QDialog::reject();
}

} // namespace kova::host
