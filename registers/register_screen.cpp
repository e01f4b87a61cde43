#include "registers/register_screen.hpp"

#include "registers/form_draft.hpp"
#include "registers/form_pages.hpp"
#include "registers/register_words.hpp"
#include "registers/row_buttons.hpp"
#include "registers/row_saving.hpp"
#include "registers/search_pane.hpp"
#include "registers/suggestions_dialog.hpp"
#include "registers/trying.hpp"
#include "screens/plain_label.hpp"
#include "screens/question.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QApplication>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

namespace kova::registers {

namespace {

using family::registers::RemoveAnswer;
using family::registers::SaveAnswer;

constexpr double TitlePoints = 13;

} // namespace

RegisterScreen::RegisterScreen(const Register& of, const Desk& desk, const RecordActions& actions,
                               QWidget* parent)
    : QWidget(parent),
      register_(of),
      desk_(desk),
      search_(new SearchPane(of, desk, this)),
      title_(screens::MakePlainLabel(QStringLiteral("titulo"), this)),
      told_(screens::MakePlainLabel(QStringLiteral("recado"), this)),
      form_(new RecordForm(of, desk, this)),
      pages_(new FormPages(of, desk, *form_, this)),
      draft_(new FormDraft(of, desk, *form_)),
      saving_(std::make_unique<RowSaving>(of, desk, *form_, *this)),
      buttons_(new RowButtons(of, *form_, actions, this))
{
    title_->setFont(qt::MakeFont("Arial", TitlePoints, true));
    LayOut();
    Connect();
    search_->Mark(search_->FirstFound());
    if (search_->FirstFound() != 0)
        ShowRow(search_->FirstFound());
    else
        New();
    setFocusProxy(search_);
}

RegisterScreen::~RegisterScreen() = default;

void RegisterScreen::LayOut()
{
    search_->Put(buttons_->New(), buttons_->Suggest());
    auto* right = new QWidget(this);
    auto* rightColumn = new QVBoxLayout(right);
    rightColumn->setContentsMargins(8, 0, 0, 0);
    rightColumn->addWidget(title_);
    rightColumn->addWidget(pages_, 1);
    rightColumn->addWidget(told_);
    rightColumn->addWidget(buttons_);

    auto* sides = new QSplitter(this);
    sides->setChildrenCollapsible(false);
    sides->addWidget(search_);
    sides->addWidget(right);
    sides->setStretchFactor(0, 1);
    sides->setStretchFactor(1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(sides);
}

void RegisterScreen::Connect()
{
    search_->onSought = [this] { Find(); };
    search_->onTurned = [this](family::Key key) { TurnTo(key); };
    search_->onOpened = [this] { FocusForm(); };
    saving_->onSaved = [this](const SaveAnswer& answer) { ShowSaved(answer); };
    saving_->onRefused = [this] { pages_->ShowForm(); };
    saving_->onOpen = [this](family::Key key) {
        ShowRow(key);
        Find();
    };
    buttons_->onNew = [this] { New(); };
    buttons_->onSuggest = [this] { Suggest(); };
    buttons_->onSave = [this] { Save(); };
    buttons_->onDiscard = [this] { Discard(); };
    buttons_->onRemove = [this] { Remove(); };
    buttons_->onPicked = [this](const RecordAction& action) { Run(action); };
    form_->onEdited = [this] {
        Tell({});
        OfferButtons();
    };
}

void RegisterScreen::Find() { search_->Find(form_->Key()); }

bool RegisterScreen::IsChanged() const { return form_->IsChanged(); }

bool RegisterScreen::MayLeave()
{
    if (!IsChanged())
        return true;
    switch (screens::AskAboutChanges(*this, title_->text())) {
    case screens::WhatOfChanges::Save: return saving_->Save();
    case screens::WhatOfChanges::Discard:
        form_->Show(form_->Key(), form_->Before());
        OfferButtons();
        return true;
    case screens::WhatOfChanges::Stay: break;
    }
    return false;
}

void RegisterScreen::OfferDraft()
{
    if (!draft_->Left())
        return;
    Try(*this, [this] {
        const family::Key key = draft_->Left()->key;
        if (!screens::AskToContinue(*this, NameOf(register_, desk_, key)))
            return draft_->Forget();
        draft_->Continue();
        pages_->ShowRow(key);
        title_->setText(key == 0 ? TitleOfNew(register_) : TitleOf(register_));
        search_->Mark(key);
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
    search_->Mark(form_->Key());
}

void RegisterScreen::ShowRow(family::Key key)
{
    Try(*this, [&] {
        const auto texts = register_.Read(*desk_.database, key);
        if (!texts)
            return Tell(QString::fromStdString(register_.WhatBecameOf(*desk_.database, key)));
        form_->Show(key, *texts);
        pages_->ShowRow(key);
        title_->setText(TitleOf(register_));
        Tell({});
    });
    OfferButtons();
}

void RegisterScreen::New()
{
    if (const QString why = buttons_->WhyNothingNew(); !why.isEmpty())
        return Tell(why);
    if (!MayLeave())
        return;
    ShowNew();
    Tell({});
    search_->Mark(0);
    OfferButtons();
    FocusForm();
}

void RegisterScreen::ShowNew()
{
    form_->Show(0, register_.New());
    pages_->ShowRow(0);
    pages_->ShowForm();
    title_->setText(TitleOfNew(register_));
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
    if (const QString why = buttons_->WhyNotWritten(); !why.isEmpty())
        return Tell(why);
    saving_->Save();
}

void RegisterScreen::ShowSaved(const SaveAnswer& answer)
{
    const auto stored = register_.Read(*desk_.database, answer.key);
    form_->Show(answer.key, stored.value_or(form_->Typed()));
    pages_->ShowRow(answer.key);
    title_->setText(TitleOf(register_));
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
    if (const QString why = buttons_->WhyNotWritten(); !why.isEmpty())
        return Tell(why);
    if (form_->Key() == 0 || !screens::AskToRemove(*this, Shown(register_.Name().one)))
        return;
    Try(*this, [this] {
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
    Try(*this, [&] {
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
    buttons_->Follow();
    draft_->Follow();
}

void RegisterScreen::LookAtRights(const family::DeniedRights& denied)
{
    const bool seesPrices = family::WhyOf(denied, family::Right::SeePrices).empty();
    search_->ShowPrices(seesPrices);
    form_->LookAtRights(denied);
    pages_->ShowPrices(seesPrices);
    buttons_->LookAtRights(denied);
    OfferButtons();
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

void RegisterScreen::FocusSearch() { search_->FocusSearch(); }

void RegisterScreen::TurnInactive() { search_->TurnInactive(); }

} // namespace kova::registers
