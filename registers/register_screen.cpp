#include "registers/register_screen.hpp"

#include "family/data/engine/database_failure.hpp"
#include "registers/doubles_question.hpp"
#include "registers/form_draft.hpp"
#include "registers/form_pages.hpp"
#include "registers/more_button.hpp"
#include "registers/row_list.hpp"
#include "registers/suggestions_dialog.hpp"
#include "screens/offer.hpp"
#include "screens/plain_label.hpp"
#include "screens/question.hpp"
#include "screens/search_box.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QApplication>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>

#include <algorithm>

namespace kova::registers {

namespace {

using family::registers::RemoveAnswer;
using family::registers::SaveAnswer;

constexpr double TitlePoints = 13;

QString Shown(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QPushButton* Button(const QString& name, const QString& text, const QString& tip, QWidget* parent)
{
    auto* button = new QPushButton(text, parent);
    button->setObjectName(name);
    button->setToolTip(tip);
    return button;
}

} // namespace

RegisterScreen::RegisterScreen(const Register& of, const Desk& desk, const RecordActions& actions,
                               QWidget* parent)
    : QWidget(parent),
      register_(of),
      desk_(desk),
      rows_(new RowModel(of, desk, this)),
      search_(new screens::SearchBox(QStringLiteral("pesquisa"), QStringLiteral("Pesquisar (F3)"), this)),
      inactive_(new QCheckBox(QStringLiteral("Mostrar inativos"), this)),
      list_(MakeRowList(*rows_, Shown(of.Name().title), this)),
      found_(screens::MakePlainLabel(QStringLiteral("encontrados"), this)),
      title_(screens::MakePlainLabel(QStringLiteral("titulo"), this)),
      told_(screens::MakePlainLabel(QStringLiteral("recado"), this)),
      form_(new RecordForm(of, desk, this)),
      pages_(new FormPages(of, desk, *form_, this)),
      draft_(new FormDraft(of, desk, *form_)),
      new_(Button(QStringLiteral("novo"), QStringLiteral("&Novo"), QStringLiteral("Ctrl+N"), this)),
      save_(Button(QStringLiteral("salvar"), QStringLiteral("&Salvar"), QStringLiteral("Ctrl+S"), this)),
      discard_(Button(QStringLiteral("descartar"), QStringLiteral("&Desfazer"), QStringLiteral("Esc"), this)),
      remove_(
          Button(QStringLiteral("excluir"), QStringLiteral("&Excluir"), QStringLiteral("Ctrl+Delete"), this)),
      more_(new MoreButton(actions, of.Name().name, this))
{
    search_->setAccessibleName(QStringLiteral("Pesquisar"));
    inactive_->setObjectName(QStringLiteral("inativos"));
    inactive_->setToolTip(QStringLiteral("Ctrl+I"));
    inactive_->setVisible(of.HasInactive());
    title_->setFont(qt::MakeFont("Arial", TitlePoints, true));
    if (!of.SuggestionsTitle().empty())
        suggest_ = Button(QStringLiteral("sugestoes"), Shown(of.SuggestionsTitle()),
                          QStringLiteral("Mostra o que outras lojas costumam ter, para escolher"), this);
    LayOut();
    Connect();
    Find();
    FitColumns(*list_);
    MarkRow(rows_->KeyAt(0));
    if (rows_->rowCount() > 0)
        ShowRow(rows_->KeyAt(0));
    else
        New();
    setFocusProxy(search_);
}

void RegisterScreen::LayOut()
{
    auto* left = new QWidget(this);
    auto* leftColumn = new QVBoxLayout(left);
    leftColumn->setContentsMargins(0, 0, 8, 0);
    auto* searchRow = new QHBoxLayout;
    searchRow->addWidget(search_, 1);
    searchRow->addWidget(new_);
    leftColumn->addLayout(searchRow);
    leftColumn->addWidget(list_, 1);
    auto* belowList = new QHBoxLayout;
    belowList->addWidget(found_, 1);
    belowList->addWidget(inactive_);
    if (suggest_ != nullptr)
        belowList->addWidget(suggest_);
    leftColumn->addLayout(belowList);

    auto* right = new QWidget(this);
    auto* rightColumn = new QVBoxLayout(right);
    rightColumn->setContentsMargins(8, 0, 0, 0);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(save_);
    buttons->addWidget(discard_);
    buttons->addStretch(1);
    buttons->addWidget(more_);
    buttons->addWidget(remove_);
    rightColumn->addWidget(title_);
    rightColumn->addWidget(pages_, 1);
    rightColumn->addWidget(told_);
    rightColumn->addLayout(buttons);

    auto* sides = new QSplitter(this);
    sides->setChildrenCollapsible(false);
    sides->addWidget(left);
    sides->addWidget(right);
    sides->setStretchFactor(0, 1);
    sides->setStretchFactor(1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(sides);
}

void RegisterScreen::Connect()
{
    connect(search_, &screens::SearchBox::textChanged, this, [this] { Find(); });
    connect(inactive_, &QCheckBox::toggled, this, [this] { Find(); });
    connect(list_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& row) {
                if (!isMarking_ && row.isValid())
                    TurnTo(rows_->KeyAt(row.row()));
            });
    connect(list_, &QTableView::activated, this, [this] { FocusForm(); });
    connect(new_, &QPushButton::clicked, this, [this] { New(); });
    connect(save_, &QPushButton::clicked, this, [this] { Save(); });
    connect(discard_, &QPushButton::clicked, this, [this] { Discard(); });
    connect(remove_, &QPushButton::clicked, this, [this] { Remove(); });
    if (suggest_ != nullptr)
        connect(suggest_, &QPushButton::clicked, this, [this] { Suggest(); });
    more_->onPicked = [this](const RecordAction& action) { Run(action); };
    form_->onEdited = [this] {
        Tell({});
        OfferButtons();
    };
    search_->WalkThrough(*list_);
    search_->onEnter = [this] { OpenFound(); };
}

bool RegisterScreen::Try(const std::function<void()>& act)
{
    try {
        act();
        return true;
    } catch (const family::DatabaseFailure& failure) {
        screens::ShowWarning(*this, qt::Lines(failure.Description()));
        return false;
    }
}

void RegisterScreen::Find()
{
    isMarking_ = true;
    Try([this] {
        rows_->Show(register_.Find(*desk_.database, search_->text().toStdString(), WhichRows()));
        found_->setText(Found());
    });
    isMarking_ = false;
    MarkRow(form_->Key());
}

family::registers::Listed RegisterScreen::WhichRows() const
{
    return register_.HasInactive() && !inactive_->isChecked() ? family::registers::Listed::Active
                                                              : family::registers::Listed::All;
}

QString RegisterScreen::Found() const
{
    const int count = rows_->rowCount();
    if (count > 0)
        return count == 1 ? QStringLiteral("1 encontrado") : QStringLiteral("%L1 encontrados").arg(count);
    const bool isAll = WhichRows() == family::registers::Listed::All;
    const std::size_t hidden =
        isAll ? 0 : register_.Find(*desk_.database, search_->text().toStdString()).size();
    if (hidden > 0)
        return QStringLiteral("Nenhum ativo; %L1 entre os inativos").arg(hidden);
    return search_->text().isEmpty()
        ? QStringLiteral("Ainda não há nenhum registro. Preencha a ficha e salve o primeiro.")
        : QStringLiteral("0 encontrados");
}

void RegisterScreen::TurnInactive()
{
    if (register_.HasInactive())
        inactive_->toggle();
}

void RegisterScreen::MarkRow(family::Key key)
{
    isMarking_ = true;
    const int row = key == 0 ? -1 : rows_->RowOf(key);
    if (row < 0)
        list_->selectionModel()->clear();
    else
        list_->setCurrentIndex(rows_->index(row, 0));
    isMarking_ = false;
}

bool RegisterScreen::IsChanged() const { return form_->IsChanged(); }

bool RegisterScreen::MayLeave()
{
    if (!IsChanged())
        return true;
    switch (screens::AskAboutChanges(*this, title_->text())) {
    case screens::WhatOfChanges::Save: return SaveRow();
    case screens::WhatOfChanges::Discard:
        form_->Show(form_->Key(), form_->Before());
        OfferButtons();
        return true;
    case screens::WhatOfChanges::Stay: break;
    }
    return false;
}

// "Clientes: Ana Luz", "Novo: cliente"
QString RegisterScreen::NameOf(family::Key key) const
{
    const auto rows = register_.Rows(*desk_.database, std::span(&key, 1));
    const QString title = Shown(register_.Name().title);
    if (key == 0 || rows.empty())
        return key == 0 ? TitleOfNew() : title;
    return title + QStringLiteral(": ") + QString::fromStdString(rows.front().cells.front());
}

void RegisterScreen::OfferDraft()
{
    if (!draft_->Left())
        return;
    Try([this] {
        const family::Key key = draft_->Left()->key;
        if (!screens::AskToContinue(*this, NameOf(key)))
            return draft_->Forget();
        draft_->Continue();
        pages_->ShowRow(key);
        title_->setText(key == 0 ? TitleOfNew() : Shown(register_.Name().title));
        MarkRow(key);
        FocusForm();
    });
    OfferButtons();
}

void RegisterScreen::TurnTo(family::Key key)
{
    if (key == form_->Key())
        return;
    if (MayLeave())
        ShowRow(key);
    MarkRow(form_->Key());
}

void RegisterScreen::ShowRow(family::Key key)
{
    Try([&] {
        const auto texts = register_.Read(*desk_.database, key);
        if (!texts)
            return Tell(QString::fromStdString(register_.WhatBecameOf(*desk_.database, key)));
        form_->Show(key, *texts);
        pages_->ShowRow(key);
        title_->setText(Shown(register_.Name().title));
        Tell({});
    });
    OfferButtons();
}

void RegisterScreen::New()
{
    if (const QString why = WhyNothingNew(); !why.isEmpty())
        return Tell(why);
    if (!MayLeave())
        return;
    ShowNew();
    Tell({});
    MarkRow(0);
    OfferButtons();
    FocusForm();
}

void RegisterScreen::ShowNew()
{
    form_->Show(0, register_.New());
    pages_->ShowRow(0);
    pages_->ShowForm();
    title_->setText(TitleOfNew());
}

// "Novo: cliente", "Nova: espécie"
QString RegisterScreen::TitleOfNew() const
{
    const auto& name = register_.Name();
    return QStringLiteral("Nov%1: %2").arg(QLatin1Char(name.ending)).arg(Shown(name.one));
}

void RegisterScreen::Suggest()
{
    SuggestionsDialog dialog(register_, desk_, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    Find();
    Tell(dialog.Added() == 1 ? QStringLiteral("1 incluído.")
                             : QStringLiteral("%L1 incluídos.").arg(dialog.Added()));
}

void RegisterScreen::Save()
{
    if (const QString why = WhyNotWritten(); !why.isEmpty())
        return Tell(why);
    SaveRow();
}

bool RegisterScreen::SaveRow()
{
    bool isSaved = false;
    Try([&] {
        form_->SettleAll();
        if (!MayBeSaved() || !IsNoDouble())
            return;
        const SaveAnswer answer =
            register_.Save(*desk_.database, form_->Key(), form_->Before(), form_->Typed(), desk_.author());
        isSaved = answer.IsDone();
        ShowAnswer(answer);
    });
    return isSaved;
}

// Nor is asked about what would be refused for another reason.
bool RegisterScreen::IsNoDouble()
{
    using family::registers::LikelyDouble;
    const family::registers::Texts typed = form_->Typed();
    const auto doubles = register_.LikelyDoubles(*desk_.database, form_->Key(), form_->Before(), typed);
    const SaveAnswer checked = register_.Check(*desk_.database, form_->Key(), form_->Before(), typed);
    if (doubles.empty() || (!checked.IsDone() && std::ranges::none_of(doubles, &LikelyDouble::bars)))
        return true;
    const DoublesAnswer answer = AskAboutDoubles(*this, doubles);
    if (answer.what == DoublesAnswer::What::Open) {
        ShowRow(answer.key);
        Find();
    } else if (answer.what == DoublesAnswer::What::Stay)
        Refuse(checked.refused);
    return answer.what == DoublesAnswer::What::Save;
}

// What would be refused is not asked about.
bool RegisterScreen::MayBeSaved()
{
    const std::string concern = register_.ConcernAbout(*desk_.database, form_->Key(), form_->Typed());
    return concern.empty()
        || !register_.Check(*desk_.database, form_->Key(), form_->Before(), form_->Typed()).IsDone()
        || screens::AskToSave(*this, QString::fromStdString(concern));
}

void RegisterScreen::ShowAnswer(const SaveAnswer& answer)
{
    Refuse(answer.refused);
    switch (answer.outcome) {
    case SaveAnswer::Outcome::Done: return ShowSaved(answer);
    case SaveAnswer::Outcome::Refused:
        if (!answer.clash.empty())
            screens::ShowWarning(*this, qt::Lines(answer.clash));
        return;
    case SaveAnswer::Outcome::Gone:
        screens::ShowWarning(*this,
                             QString::fromStdString(register_.WhatBecameOf(*desk_.database, form_->Key()))
                                 + QStringLiteral(" O que foi digitado continua na tela."));
    }
}

void RegisterScreen::Refuse(std::span<const family::registers::RefusedField> refused)
{
    if (!refused.empty())
        pages_->ShowForm();
    form_->Refuse(refused);
}

void RegisterScreen::ShowSaved(const SaveAnswer& answer)
{
    const auto stored = register_.Read(*desk_.database, answer.key);
    form_->Show(answer.key, stored.value_or(form_->Typed()));
    pages_->ShowRow(answer.key);
    title_->setText(Shown(register_.Name().title));
    Find();
    OfferButtons();
    Tell(answer.booked == 0 ? QStringLiteral("Salvo.")
                            : QStringLiteral("Salvo. Continuam marcados %L1 agendamentos de hoje em diante.")
                                  .arg(answer.booked));
}

void RegisterScreen::Discard()
{
    // Escape closes a list of proposals, and nothing else with it.
    if (QWidget* list = QApplication::activePopupWidget()) {
        list->close();
        return;
    }
    if (IsChanged() && !screens::AskToDiscard(*this))
        return;
    if (form_->Key() == 0)
        form_->Show(0, register_.New());
    else
        ShowRow(form_->Key());
    OfferButtons();
}

void RegisterScreen::Remove()
{
    if (const QString why = WhyNotWritten(); !why.isEmpty())
        return Tell(why);
    if (form_->Key() == 0 || !screens::AskToRemove(*this, Shown(register_.Name().one)))
        return;
    Try([this] {
        const RemoveAnswer answer = register_.Remove(*desk_.database, form_->Key(), desk_.author());
        if (answer.outcome == RemoveAnswer::Outcome::Kept)
            return screens::ShowWarning(*this, qt::Lines(answer.text));
        const QString told = answer.IsDone()
            ? QStringLiteral("Excluído.")
            : QString::fromStdString(register_.WhatBecameOf(*desk_.database, form_->Key()));
        ShowNew();
        Find();
        OfferButtons();
        Tell(told);
    });
}

void RegisterScreen::Run(const RecordAction& action)
{
    const family::Key key = form_->Key();
    if (!MayLeave())
        return;
    ShowRow(key);
    Try([&] {
        const ActionResult result = action.run({*this, desk_, key});
        if (result.key == 0)
            ShowNew();
        else
            ShowRow(result.key);
        Find();
        OfferButtons();
        Tell(result.told);
    });
}

void RegisterScreen::Tell(const QString& text)
{
    told_->setText(text);
    told_->setVisible(!text.isEmpty());
}

void RegisterScreen::OfferButtons()
{
    const QString why = WhyNotWritten();
    screens::Offer(*new_, true, WhyNothingNew());
    screens::Offer(*save_, IsChanged() || form_->Key() == 0, why);
    discard_->setEnabled(IsChanged());
    screens::Offer(*remove_, form_->Key() != 0, why);
    if (suggest_ != nullptr)
        screens::Offer(*suggest_, true, why);
    more_->setEnabled(form_->Key() != 0);
    draft_->Follow();
}

void RegisterScreen::LookAtRights(const family::DeniedRights& denied)
{
    denied_ = denied;
    const bool seesPrices = family::WhyOf(denied, family::Right::SeePrices).empty();
    ShowPrices(*list_, register_.ListColumns(), seesPrices);
    form_->LookAtRights(denied);
    pages_->ShowPrices(seesPrices);
    more_->LookAtRights(denied);
    OfferButtons();
}

QString RegisterScreen::WhyNotWritten() const
{
    return QString::fromStdString(family::WhyOf(denied_, register_.RightToWrite()));
}

QString RegisterScreen::WhyNothingNew() const
{
    const QString why = WhyNotWritten();
    const bool needsPrice = why.isEmpty() && family::registers::NeedsPrice(register_);
    return needsPrice ? QString::fromStdString(family::WhyOf(denied_, family::Right::SeePrices)) : why;
}

bool RegisterScreen::event(QEvent* event)
{
    if (event->type() == QEvent::WindowDeactivate || event->type() == QEvent::Hide)
        draft_->WriteNow();
    return QWidget::event(event);
}

void RegisterScreen::Refresh()
{
    Find();
    if (!IsChanged() && form_->Key() != 0)
        ShowRow(form_->Key());
}

void RegisterScreen::TurnPage()
{
    if (!pages_->TurnToNext())
        form_->FocusFirst();
}

void RegisterScreen::FocusForm()
{
    pages_->ShowForm();
    form_->FocusFirst();
}

void RegisterScreen::FocusSearch()
{
    search_->setFocus(Qt::ShortcutFocusReason);
    search_->selectAll();
}

// Without a row that is marked it is the first.
void RegisterScreen::OpenFound()
{
    if (!list_->currentIndex().isValid() && rows_->rowCount() > 0)
        list_->setCurrentIndex(rows_->index(0, 0));
    FocusForm();
}

} // namespace kova::registers
