#include "registers/registers_page.hpp"

#include "agenda/contracts/failure.hpp"
#include "family/data/engine/database.hpp"
#include "family/registers/registers.hpp"
#include "registers/importing/export_dialog.hpp"
#include "registers/importing/import_wizard.hpp"
#include "registers/names_panel.hpp"
#include "registers/register_screen.hpp"
#include "registers/register_words.hpp"
#include "screens/offer.hpp"

#include <QBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QStyle>
#include <QTimer>

#include <algorithm>

namespace kova::registers {

namespace {

constexpr int LeastWidthOfNames = 150;
constexpr int RoomBesideNames = 16;
constexpr int HeightOfName = 32;
constexpr int LeastWidthForTwoColumns = 760;
constexpr QMargins UsualMargins(20, 16, 20, 12), NarrowMargins(12, 8, 12, 8);
constexpr int RoomBetween = 16;

} // namespace

RegistersPage::RegistersPage(Desk desk, QWidget* parent, RegistersChoice choice)
    : QWidget(parent),
      desk_(std::move(desk)),
      actions_(std::move(choice.actions)),
      registers_(family::registers::Registers().begin(), family::registers::Registers().end()),
      guarded_(registers_.size()),
      showsGuarded_(std::move(choice.showsGuarded)),
      names_(new QListWidget(this)),
      pages_(new QStackedWidget(this))
{
    registers_.insert(registers_.end(), choice.guarded.begin(), choice.guarded.end());
    screens_.resize(registers_.size());
    names_->setObjectName(QStringLiteral("cadastros"));
    names_->setAccessibleName(QStringLiteral("Cadastros"));
    names_->ensurePolished();
    int widest = 0;
    for (const family::registers::Register* one : registers_) {
        auto* item = new QListWidgetItem(Shown(one->Name().title), names_);
        widest = std::max(widest, names_->fontMetrics().horizontalAdvance(item->text()));
        item->setSizeHint({0, HeightOfName});
        pages_->addWidget(new QWidget(pages_));
    }
    // On a low screen the names scroll, and the bar must not cover their ends.
    widest += style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, names_);
    names_->setMinimumWidth(std::max(LeastWidthOfNames, widest + RoomBesideNames));
    LayOut();
    connect(names_, &QListWidget::currentRowChanged, this, [this](int row) { TurnTo(row); });
    AddShortcuts();
    ShowGuarded();
    names_->setCurrentRow(0);
}

void RegistersPage::ShowGuarded()
{
    const bool isShown = guarded_ < registers_.size() && showsGuarded_();
    if (!isShown && names_->currentRow() >= static_cast<int>(guarded_))
        names_->setCurrentRow(0);
    for (std::size_t row = guarded_; row < registers_.size(); ++row)
        names_->item(static_cast<int>(row))->setHidden(!isShown);
    panel_->Follow();
}

void RegistersPage::OfferFiles()
{
    const family::registers::Register& of = *registers_[static_cast<std::size_t>(names_->currentRow())];
    const bool isOffered = names_->currentRow() < static_cast<int>(guarded_);
    const std::string prices =
        family::registers::HasPrices(of) ? family::WhyOf(denied_, family::Right::SeePrices) : std::string();
    const auto why = [&](family::Right right) {
        const std::string without = family::WhyOf(denied_, right);
        return QString::fromStdString(without.empty() ? prices : without);
    };
    screens::Offer(*import_, isOffered, why(of.RightToWrite()));
    screens::Offer(*export_, isOffered, why(family::Right::Export));
}

void RegistersPage::LayOut()
{
    import_ = FileButton(QStringLiteral("importarPlanilha"), QStringLiteral("&Importar planilha..."),
                         &RegistersPage::Import);
    export_ = FileButton(QStringLiteral("exportarPlanilha"), QStringLiteral("E&xportar planilha..."),
                         &RegistersPage::Export);
    panel_ = new NamesPanel(*names_, {import_, export_}, this);
    layout_ = new QBoxLayout(QBoxLayout::LeftToRight, this);
    layout_->setContentsMargins(UsualMargins);
    layout_->setSpacing(RoomBetween);
    // What it needs depends on what it has.
    layout_->setSizeConstraint(QLayout::SetNoConstraint);
    layout_->addWidget(panel_);
    layout_->addWidget(pages_, 1);
}

QSize RegistersPage::minimumSizeHint() const
{
    const int width = pages_->minimumSizeHint().width() + NarrowMargins.left() + NarrowMargins.right();
    return {width, layout_->minimumSize().height()};
}

// The names stand above the screens where these would have too little room beside them.
void RegistersPage::resizeEvent(QResizeEvent* event)
{
    const bool isNarrow = width() < LeastWidthForTwoColumns;
    layout_->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    layout_->setContentsMargins(isNarrow ? NarrowMargins : UsualMargins);
    layout_->setSpacing(isNarrow ? RoomBetween / 2 : RoomBetween);
    panel_->SetNarrow(isNarrow);
    QWidget::resizeEvent(event);
}

// The screens use the desk as long as they are there; hidden, they write what is not written yet.
RegistersPage::~RegistersPage()
{
    hide();
    delete pages_;
}

void RegistersPage::AddShortcuts()
{
    const std::pair<QKeySequence, void (RegisterScreen::*)()> keys[] = {
        {Qt::CTRL | Qt::Key_N, &RegisterScreen::New},
        {Qt::CTRL | Qt::Key_S, &RegisterScreen::Save},
        {Qt::Key_Escape, &RegisterScreen::Discard},
        {Qt::CTRL | Qt::Key_Delete, &RegisterScreen::Remove},
        {Qt::CTRL | Qt::Key_I, &RegisterScreen::TurnInactive},
        {Qt::Key_F3, &RegisterScreen::FocusSearch},
        {Qt::Key_F6, &RegisterScreen::TurnPage}};
    for (const auto& [key, act] : keys)
        connect(new QShortcut(key, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut),
                &QShortcut::activated, this, [this, act = act] { (Current()->*act)(); });
    for (const auto& [key, step] :
         {std::pair(Qt::CTRL | Qt::Key_PageDown, 1), {Qt::CTRL | Qt::Key_PageUp, -1}})
        connect(new QShortcut(key, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut),
                &QShortcut::activated, this, [this, step = step] { TurnBy(step); });
}

// From the last one to the first.
void RegistersPage::TurnBy(int step)
{
    int row = names_->currentRow();
    do
        row = (row + step + names_->count()) % names_->count();
    while (names_->item(row)->isHidden());
    names_->setCurrentRow(row);
    Current()->setFocus();
}

QPushButton* RegistersPage::FileButton(const QString& name, const QString& text, void (RegistersPage::*act)())
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, [this, act] { (this->*act)(); });
    return button;
}

std::string_view RegistersPage::CurrentName() const
{
    return registers_[static_cast<std::size_t>(names_->currentRow())]->Name().name;
}

void RegistersPage::Open(QDialog& dialog)
{
    dialog.setAttribute(Qt::WA_DeleteOnClose);
    dialog.open();
}

void RegistersPage::Import()
{
    auto* wizard = new ImportWizard({desk_.database->Path(), desk_.author}, CurrentName(), this);
    wizard->onWritten = [this] { Refresh(); };
    Open(*wizard);
}

void RegistersPage::Export()
{
    Open(*new ExportDialog({desk_.database->Path(), desk_.author}, CurrentName(), this));
}

void RegistersPage::Refresh()
{
    ShowGuarded();
    LookAtRights();
    for (RegisterScreen* screen : screens_) {
        if (screen != nullptr)
            screen->Refresh();
    }
}

RegisterScreen* RegistersPage::Current() const
{
    return screens_[static_cast<std::size_t>(names_->currentRow())];
}

void RegistersPage::TurnTo(int row)
{
    RegisterScreen*& screen = screens_[static_cast<std::size_t>(row)];
    if (screen == nullptr) {
        screen = new RegisterScreen(*registers_[static_cast<std::size_t>(row)], desk_, actions_, pages_);
        QWidget* const placeholder = pages_->widget(row);
        pages_->insertWidget(row, screen);
        pages_->removeWidget(placeholder);
        delete placeholder;
        // The page is on show by then.
        QTimer::singleShot(0, screen, [screen] { screen->OfferDraft(); });
    }
    pages_->setCurrentIndex(row);
    setFocusProxy(screen);
    LookAtRights();
}

// They may have been changed at another desk, too. While nobody can be asked it is as it was before.
void RegistersPage::LookAtRights()
{
    try {
        denied_ = family::DeniedRightsOf(*desk_.database, desk_.author());
        for (RegisterScreen* screen : screens_) {
            if (screen != nullptr)
                screen->LookAtRights(denied_);
        }
    } catch (const Failure&) {
        return OfferFiles();
    }
    OfferFiles();
}

bool RegistersPage::MayLeave()
{
    for (std::size_t row = 0; row < screens_.size(); ++row) {
        if (screens_[row] == nullptr || !screens_[row]->IsChanged())
            continue;
        names_->setCurrentRow(static_cast<int>(row));
        if (!screens_[row]->MayLeave())
            return false;
    }
    return true;
}

} // namespace kova::registers
