#include "host/sign_in/idle_minutes_dialog.hpp"

#include "family/data/engine/database_failure.hpp"
#include "family/users/idle_lock.hpp"
#include "host/sign_in/door.hpp"
#include "screens/field_frame.hpp"
#include "screens/grows_with_contents.hpp"
#include "screens/plain_label.hpp"
#include "screens/refusal_label.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace kova::host {

namespace {

constexpr int Width = 460;

} // namespace

IdleMinutesDialog::IdleMinutesDialog(Door& door, QWidget* parent)
    : QDialog(parent), door_(door), minutes_(new QSpinBox), failure_(new screens::RefusalLabel(this))
{
    setObjectName(QStringLiteral("Bloqueio"));
    setWindowTitle(QStringLiteral("Bloqueio por inatividade"));
    setBackgroundRole(QPalette::Base);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setSpacing(12);
    QLabel* explanation = screens::MakePlainLabel(QStringLiteral("explicacao"), this);
    explanation->setText(QStringLiteral(
        "Vale para todos os postos da loja: a tela de um posto sem uso é bloqueada, e continua "
        "quem entrar com o PIN ou a senha. Com 0 minutos ela nunca é bloqueada sozinha."));
    layout->addWidget(explanation);
    minutes_->setObjectName(QStringLiteral("minutos"));
    minutes_->setRange(0, family::MostIdleMinutes);
    minutes_->setValue(door.IdleMinutes());
    minutes_->setMinimumHeight(screens::BoxHeight);
    layout->addWidget(new screens::FieldFrame(QStringLiteral("&Minutos sem uso"), minutes_, this));
    failure_->setObjectName(QStringLiteral("falha"));
    layout->addWidget(failure_);
    layout->addStretch(1);
    auto* buttons = new QDialogButtonBox(this);
    auto* save = buttons->addButton(QStringLiteral("Salva&r"), QDialogButtonBox::AcceptRole);
    save->setObjectName(QStringLiteral("salvar"));
    save->setDefault(true);
    buttons->addButton(QStringLiteral("&Cancelar"), QDialogButtonBox::RejectRole)
        ->setObjectName(QStringLiteral("cancelar"));
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { Save(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    screens::GrowWithContents(*this, {Width, 0});
    minutes_->setFocus();
    minutes_->selectAll();
}

void IdleMinutesDialog::Save()
{
    std::string why;
    try {
        why = door_.SetIdleMinutes(minutes_->value());
    } catch (const family::DatabaseFailure& failure) {
        why = failure.Description();
    }
    if (why.empty())
        return accept();
    minutes_->setFocus();
    failure_->Tell(qt::Lines(why));
}

} // namespace kova::host
