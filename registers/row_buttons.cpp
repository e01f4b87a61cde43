#include "registers/row_buttons.hpp"

#include "registers/more_button.hpp"
#include "registers/register_words.hpp"
#include "screens/offer.hpp"

#include <QHBoxLayout>
#include <QPushButton>

namespace kova::registers {

RowButtons::RowButtons(const Register& of, const RecordForm& form, const RecordActions& actions,
                       QWidget* parent)
    : QWidget(parent),
      register_(of),
      form_(form),
      new_(MakeButton(QStringLiteral("novo"), QStringLiteral("&Novo"), QStringLiteral("Ctrl+N"), this)),
      save_(MakeButton(QStringLiteral("salvar"), QStringLiteral("&Salvar"), QStringLiteral("Ctrl+S"), this)),
      discard_(
          MakeButton(QStringLiteral("descartar"), QStringLiteral("&Desfazer"), QStringLiteral("Esc"), this)),
      remove_(MakeButton(QStringLiteral("excluir"), QStringLiteral("&Excluir"), QStringLiteral("Ctrl+Delete"),
                         this)),
      more_(new MoreButton(actions, of.Name().name, this))
{
    if (!of.SuggestionsTitle().empty())
        suggest_ = MakeButton(QStringLiteral("sugestoes"), Shown(of.SuggestionsTitle()),
                              QStringLiteral("Mostra o que outras lojas costumam ter, para escolher"), this);
    LayOut();
    Connect();
}

void RowButtons::LayOut()
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    for (QPushButton* button : {new_, save_, discard_, static_cast<QPushButton*>(more_), remove_})
        LetGiveWay(*button);
    row->addWidget(save_);
    row->addWidget(discard_);
    row->addStretch(1);
    row->addWidget(more_);
    row->addWidget(remove_);
}

void RowButtons::Connect()
{
    connect(new_, &QPushButton::clicked, this, [this] { onNew(); });
    connect(save_, &QPushButton::clicked, this, [this] { onSave(); });
    connect(discard_, &QPushButton::clicked, this, [this] { onDiscard(); });
    connect(remove_, &QPushButton::clicked, this, [this] { onRemove(); });
    if (suggest_ != nullptr)
        connect(suggest_, &QPushButton::clicked, this, [this] { onSuggest(); });
    more_->onPicked = [this](const RecordAction& action) { onPicked(action); };
}

void RowButtons::Follow()
{
    const QString why = WhyNotWritten();
    const bool isStored = form_.Key() != 0;
    screens::Offer(*new_, true, WhyNothingNew());
    screens::Offer(*save_, form_.IsChanged() || !isStored, why);
    discard_->setEnabled(form_.IsChanged());
    screens::Offer(*remove_, isStored, why);
    if (suggest_ != nullptr)
        screens::Offer(*suggest_, true, why);
    more_->setEnabled(isStored);
}

void RowButtons::LookAtRights(const family::DeniedRights& denied)
{
    denied_ = denied;
    more_->LookAtRights(denied);
}

QString RowButtons::WhyNotWritten() const
{
    return QString::fromStdString(family::WhyOf(denied_, register_.RightToWrite()));
}

QString RowButtons::WhyNothingNew() const
{
    const QString why = WhyNotWritten();
    const bool needsPrice = why.isEmpty() && family::registers::NeedsPrice(register_);
    return needsPrice ? QString::fromStdString(family::WhyOf(denied_, family::Right::SeePrices)) : why;
}

} // namespace kova::registers
