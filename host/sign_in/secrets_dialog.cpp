#include "host/sign_in/secrets_dialog.hpp"

#include "agenda/contracts/failure.hpp"
#include "family/users/accounts.hpp"
#include "host/sign_in/secret_box.hpp"
#include "screens/field_frame.hpp"
#include "screens/grows_with_contents.hpp"
#include "screens/plain_label.hpp"
#include "screens/refusal_label.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kova::host {

namespace {

constexpr int Width = 560;
constexpr int RoomBetweenParts = 12;

QLineEdit& BoxOf(screens::FieldFrame& frame) { return static_cast<QLineEdit&>(frame.Editor()); }

/// Leads to a field that was left empty.
bool IsGiven(screens::FieldFrame* frame, const QString& reason)
{
    if (frame == nullptr || !BoxOf(*frame).text().trimmed().isEmpty())
        return true;
    frame->Refuse(reason);
    BoxOf(*frame).setFocus();
    return false;
}

} // namespace

SecretsDialog::SecretsDialog(const Question& question, Save save, QWidget* parent)
    : QDialog(parent),
      save_(std::move(save)),
      removesPin_(new QCheckBox(QStringLiteral("&Tirar o PIN"), this)),
      failure_(new screens::RefusalLabel(this))
{
    setObjectName(QStringLiteral("SenhaEPin"));
    setWindowTitle(question.title);
    setBackgroundRole(QPalette::Base);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setSpacing(RoomBetweenParts);
    AddFields(question, *layout);
    failure_->setObjectName(QStringLiteral("falha"));
    layout->addWidget(failure_);
    layout->addStretch(1);
    auto* buttons = new QDialogButtonBox(this);
    auto* ok = buttons->addButton(QStringLiteral("Salva&r"), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("salvar"));
    ok->setDefault(true);
    buttons->addButton(QStringLiteral("&Cancelar"), QDialogButtonBox::RejectRole)
        ->setObjectName(QStringLiteral("cancelar"));
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { Try(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    screens::GrowWithContents(*this, {Width, 0});
}

void SecretsDialog::AddFields(const Question& question, QVBoxLayout& layout)
{
    QLabel* explanation = screens::MakePlainLabel(QStringLiteral("explicacao"), this);
    explanation->setText(question.explanation);
    layout.addWidget(explanation);
    secrets_ = new SecretFields(question.password, this);
    QWidget* first = nullptr;
    if (question.name) {
        auto* box = new QLineEdit(QString::fromStdString(*question.name));
        box->setObjectName(QStringLiteral("nome"));
        box->setMaxLength(static_cast<int>(family::WidthOfUserName));
        name_ = new screens::FieldFrame(QStringLiteral("&Nome"), box, this, true);
        layout.addWidget(name_);
        first = box;
    }
    if (question.asksForCurrent) {
        auto* box = new SecretBox(QStringLiteral("senhaAtual"));
        current_ = new screens::FieldFrame(QStringLiteral("Senha &atual"), box, this, true);
        layout.addWidget(current_);
        secrets_->WatchCapitals(*box);
        first = box;
    }
    for (screens::FieldFrame* frame : {name_, current_}) {
        if (frame != nullptr)
            connect(&BoxOf(*frame), &QLineEdit::textEdited, frame, [frame] { frame->Refuse({}); });
    }
    layout.addWidget(secrets_);
    removesPin_->setObjectName(QStringLiteral("tirarPin"));
    removesPin_->setVisible(question.mayRemovePin);
    layout.addWidget(removesPin_);
    (first == nullptr ? secrets_ : first)->setFocus();
}

void SecretsDialog::AskOnlyForPin()
{
    if (name_ != nullptr)
        BoxOf(*name_).setEnabled(false);
    secrets_->AskOnlyForPin();
    findChild<QPushButton*>(QStringLiteral("cancelar"))->setText(QStringLiteral("&Continuar sem PIN"));
}

bool SecretsDialog::Accepts()
{
    return IsGiven(name_, QStringLiteral("Informe o nome."))
        && IsGiven(current_, QStringLiteral("Digite a senha atual.")) && secrets_->Accepts();
}

SecretsDialog::Typed SecretsDialog::Read() const
{
    Typed typed;
    if (name_ != nullptr)
        typed.name = BoxOf(*name_).text().simplified().toStdString();
    if (current_ != nullptr)
        typed.current = std::make_unique<family::Secret>(BoxOf(*current_).text().toStdString());
    typed.password = secrets_->NewPassword();
    typed.pin = secrets_->NewPin();
    typed.removesPin = removesPin_->isChecked() && !typed.pin;
    return typed;
}

void SecretsDialog::Try()
{
    failure_->Tell({});
    if (!Accepts())
        return;
    const Typed typed = Read();
    if (!typed.password && !typed.pin && !typed.removesPin)
        return failure_->Tell(QStringLiteral("Digite uma senha nova ou um PIN novo."));
    std::string why;
    setCursor(Qt::WaitCursor);
    try {
        why = save_(typed);
    } catch (const Failure& failure) {
        why = failure.Description();
    }
    unsetCursor();
    if (why.empty())
        return accept();
    (current_ != nullptr ? &BoxOf(*current_) : secrets_->focusProxy())->setFocus();
    failure_->Tell(qt::Lines(why));
}

} // namespace kova::host
