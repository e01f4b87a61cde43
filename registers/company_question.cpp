#include "registers/company_question.hpp"

#include "family/data/engine/database_failure.hpp"
#include "family/registers/registers.hpp"
#include "registers/record_form.hpp"
#include "screens/grows_with_contents.hpp"
#include "screens/refusal_label.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kova::registers {

namespace {

constexpr int UsualWidth = 720;

} // namespace

CompanyQuestion::CompanyQuestion(const Desk& desk, QWidget* parent)
    : QDialog(parent),
      desk_(desk),
      form_(new RecordForm(family::registers::CompanyRegister(), desk, this)),
      failure_(new screens::RefusalLabel(this))
{
    setObjectName(QStringLiteral("Empresa"));
    setWindowTitle(QStringLiteral("Empresa"));
    setBackgroundRole(QPalette::Base);
    auto* explanation = new QLabel(
        QStringLiteral("Esta loja ainda não tem empresa, e sem ela nada pode ser impresso. Informe-a "
                       "agora, ou depois em Cadastros, Empresa."),
        this);
    explanation->setWordWrap(true);
    form_->Show(0, family::registers::CompanyRegister().New());
    failure_->setObjectName(QStringLiteral("falha"));
    auto* buttons = new QDialogButtonBox(this);
    auto* save = buttons->addButton(QStringLiteral("&Salvar"), QDialogButtonBox::AcceptRole);
    save->setObjectName(QStringLiteral("salvar"));
    save->setDefault(true);
    buttons->addButton(QStringLiteral("&Agora não"), QDialogButtonBox::RejectRole)
        ->setObjectName(QStringLiteral("depois"));
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { Save(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(explanation);
    layout->addWidget(form_, 1);
    layout->addWidget(failure_);
    layout->addWidget(buttons);
    screens::GrowWithContents(*this, {UsualWidth, 0});
    form_->FocusFirst();
}

void CompanyQuestion::Save()
{
    failure_->Tell({});
    try {
        const auto answer = family::registers::CompanyRegister().Save(*desk_.database, 0, form_->Before(),
                                                                      form_->Typed(), desk_.author());
        form_->Refuse(answer.refused);
        if (!answer.IsDone())
            return;
        const auto& fields = family::registers::CompanyRegister().Fields();
        tradeName_ = form_->Typed()[family::registers::FieldNamed(fields, "Nome fantasia")];
        accept();
    } catch (const family::DatabaseFailure& failure) {
        failure_->Tell(qt::Lines(failure.Description()));
    }
}

} // namespace kova::registers
