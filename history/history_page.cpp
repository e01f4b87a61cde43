#include "history/history_page.hpp"

#include "family/data/audit/archived_part.hpp"
#include "family/data/engine/database_failure.hpp"
#include "family/history/changes.hpp"
#include "family/history/lines.hpp"
#include "history/filter_bar.hpp"
#include "history/line_model.hpp"
#include "history/line_panel.hpp"
#include "screens/plain_label.hpp"
#include "screens/question.hpp"
#include "screens/row_table.hpp"
#include "screens/scrolled_body.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QShortcut>
#include <QShowEvent>
#include <QSplitter>
#include <QStackedWidget>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace kova::history {

namespace {

using family::history::Subject;

/// Beside each other.
constexpr int WidthOfList = 3, WidthOfPanel = 2;
constexpr int RoomInColumn = 10;
constexpr int WidestColumn = 160;
/// Below each other in a page that is narrower; with less height than these the page scrolls.
constexpr int LeastWidthForTwoColumns = 600;
constexpr int LeastHeightOfList = 140, LeastHeightOfPanel = 240;
/// As much as the smallest screen has.
constexpr QSize LeastSize(440, 200);

QTableView* MakeList(LineModel& lines, QWidget* parent)
{
    QTableView* const list = screens::MakeRowTable(lines, QStringLiteral("Linhas do histórico"), parent);
    list->setObjectName(QStringLiteral("linhas"));
    list->horizontalHeader()->moveSection(LineModel::Where, LineModel::What);
    list->horizontalHeader()->setSectionResizeMode(LineModel::What, QHeaderView::Stretch);
    return list;
}

} // namespace

HistoryPage::HistoryPage(Desk desk, QWidget* parent)
    : QWidget(parent),
      desk_(std::move(desk)),
      lines_(new LineModel(desk_, this)),
      filter_(new FilterBar(desk_, this)),
      list_(MakeList(*lines_, this)),
      found_(screens::MakePlainLabel(QStringLiteral("encontrados"), this)),
      told_(screens::MakePlainLabel(QStringLiteral("recado"), this)),
      refusal_(screens::MakePlainLabel(QStringLiteral("impedimento"), this)),
      panel_(new LinePanel(desk_, this)),
      sides_(new QSplitter(this)),
      pages_(new QStackedWidget(this))
{
    LayOut();
    AddShortcuts();
    filter_->onChanged = [this] { Find(); };
    filter_->onArchive = [this](bool isWanted) { IncludeArchive(isWanted); };
    onChooseArchive = [this] {
        return QFileDialog::getOpenFileName(
            this, QStringLiteral("Onde está o arquivo da auditoria?"), {},
            QStringLiteral("Arquivos da auditoria (*.auditoria);;Todos os arquivos (*)"));
    };
    filter_->WalkThrough(*list_);
    panel_->onUndo = [this] { Undo(); };
    lines_->onMore = [this] { TellFound(); };
    lines_->onFailure = [this](const std::string& why) { Tell(qt::Lines(why)); };
    connect(list_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& row) { ShowLine(row.row()); });
    connect(list_, &QTableView::activated, panel_, [this] { panel_->setFocus(); });
    // Where Ctrl+Z is no matter of what is typed.
    setFocusProxy(list_);
}

// The list and the panel use the desk as long as they are there.
HistoryPage::~HistoryPage()
{
    list_->selectionModel()->disconnect(this);
    delete pages_;
}

void HistoryPage::LayOut()
{
    refusal_->setAlignment(Qt::AlignCenter);
    refusal_->setMargin(80);
    refusal_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    pages_->addWidget(MakeContent());
    pages_->addWidget(refusal_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 12, 20, 12);
    // What it needs depends on what it has.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(pages_);
}

QSize HistoryPage::minimumSizeHint() const { return LeastSize; }

void HistoryPage::resizeEvent(QResizeEvent* event)
{
    const bool isNarrow = width() < LeastWidthForTwoColumns;
    filter_->SetNarrow(isNarrow);
    sides_->setOrientation(isNarrow ? Qt::Vertical : Qt::Horizontal);
    QWidget::resizeEvent(event);
}

void HistoryPage::MakeSides()
{
    auto* left = new QWidget(this);
    auto* column = new QVBoxLayout(left);
    column->setContentsMargins(0, 0, 8, 0);
    column->addWidget(list_, 1);
    column->addWidget(found_);
    list_->setMinimumHeight(LeastHeightOfList);
    panel_->setMinimumHeight(LeastHeightOfPanel);
    sides_->setChildrenCollapsible(false);
    sides_->addWidget(left);
    sides_->addWidget(panel_);
    sides_->setStretchFactor(0, WidthOfList);
    sides_->setStretchFactor(1, WidthOfPanel);
}

QWidget* HistoryPage::MakeContent()
{
    MakeSides();
    auto* content = new QWidget(this);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(filter_);
    layout->addWidget(sides_, 1);
    layout->addWidget(told_);
    return new screens::ScrolledBody(content, this);
}

void HistoryPage::AddShortcuts()
{
    const auto add = [this](const QKeySequence& keys, const std::function<void()>& act) {
        connect(new QShortcut(keys, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut),
                &QShortcut::activated, this, act);
    };
    add(Qt::Key_F3, [this] { filter_->FocusSearch(); });
    add(Qt::Key_F5, [this] { Refresh(); });
    add(Qt::CTRL | Qt::Key_L, [this] {
        filter_->Clear();
        Find();
    });
    add(Qt::CTRL | Qt::Key_Z, [this] { Undo(); });
    add(Qt::Key_F6, [this] {
        QWidget* const next = list_->hasFocus() ? static_cast<QWidget*>(panel_) : list_;
        next->setFocus(Qt::ShortcutFocusReason);
    });
}

// Others may have written while it was not on show.
void HistoryPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous())
        Refresh();
}

void HistoryPage::Try(const std::function<void()>& read)
{
    try {
        read();
        pages_->setCurrentIndex(0);
    } catch (const Failure& failure) {
        lines_->Clear();
        panel_->Show({});
        refusal_->setText(QStringLiteral("O histórico não pode ser mostrado.\n\n")
                          + qt::Lines(failure.Description()) + QStringLiteral("\n\nTente de novo com F5."));
        pages_->setCurrentIndex(1);
    }
}

void HistoryPage::Refresh()
{
    Try([this] {
        filter_->OfferWriters(
            family::history::FindWriters({*desk_.database, archive_.get()}, desk_.author()));
        filter_->OfferArchive(QString::fromStdString(family::ToldArchive(*desk_.database)));
        if (const auto filter = filter_->Current())
            FindLines(*filter);
    });
}

void HistoryPage::IncludeArchive(bool isWanted)
{
    archive_ = isWanted ? OpenArchive() : nullptr;
    filter_->MarkArchive(archive_ != nullptr);
    Refresh();
}

std::shared_ptr<family::Database> HistoryPage::OpenArchive()
{
    try {
        if (auto archive = desk_.archive({}))
            return archive;
        const QString file = onChooseArchive();
        return file.isEmpty() ? nullptr : desk_.archive(file.toStdString());
    } catch (const Failure& failure) {
        screens::ShowWarning(*this, qt::Lines(failure.Description()));
        return nullptr;
    }
}

void HistoryPage::ShowRow(const std::string& table, family::Key key, const QString& called)
{
    const auto kind = table == "cliente" ? Subject::Kind::Customer
        : table == "usuario"             ? Subject::Kind::User
                                         : Subject::Kind::Row;
    filter_->Show({kind, kind == Subject::Kind::Row ? table : "", key, ""}, called);
    Refresh();
}

void HistoryPage::Find()
{
    Try([this] {
        if (const auto filter = filter_->Current())
            FindLines(*filter);
    });
}

void HistoryPage::FindLines(const family::history::Filter& filter)
{
    const family::Key marked = panel_->Shown() ? panel_->Shown()->audit.code : 0;
    Tell({});
    lines_->Show(filter, archive_);
    TellFound();
    for (const int column : {LineModel::When, LineModel::Who, LineModel::Where})
        screens::FitColumn(*list_, column, RoomInColumn, WidestColumn);
    Mark(marked);
}

// The first where that one is not there any more.
void HistoryPage::Mark(family::Key code)
{
    const int row = std::max(lines_->RowOf(code), 0);
    if (lines_->rowCount() == 0)
        return ShowLine(-1);
    list_->setCurrentIndex(lines_->index(row, 0));
}

void HistoryPage::ShowLine(int row)
{
    const family::history::Line* line = lines_->LineAt(row);
    try {
        panel_->Show(line == nullptr ? std::nullopt : std::optional(*line));
    } catch (const Failure& failure) {
        Tell(qt::Lines(failure.Description()));
    }
}

void HistoryPage::Undo()
{
    if (!panel_->Shown())
        return;
    const family::history::Line line = *panel_->Shown();
    if (!panel_->Plan().IsPossible())
        return screens::ShowWarning(*this, qt::Lines(panel_->Plan().why));
    const QString act = QString::fromStdString(family::history::ActOf(line));
    if (!screens::AskWhether(*this,
                             QStringLiteral("Desfazer isto?\n\n") + act + QStringLiteral("\n\n")
                                 + qt::Lines(panel_->Plan().what)))
        return;
    QString told;
    try {
        const family::history::UndoAnswer answer =
            family::history::Undo(*desk_.database, desk_.author(), line);
        if (!answer.IsDone())
            screens::ShowWarning(*this, qt::Lines(answer.why));
        else
            told = QStringLiteral("Desfeito: ") + act + QStringLiteral(".");
    } catch (const Failure& failure) {
        screens::ShowWarning(*this, qt::Lines(failure.Description()));
    }
    Refresh();
    Tell(told);
}

void HistoryPage::Tell(const QString& text)
{
    told_->setText(text);
    told_->setVisible(!text.isEmpty());
}

void HistoryPage::TellFound()
{
    const int count = lines_->rowCount();
    if (count == 0)
        return found_->setText(
            filter_->IsNarrowed()
                ? QStringLiteral("Nada no histórico atende a isto. Limpe os filtros com Ctrl+L.")
                : QStringLiteral("Ainda não há nada no histórico: tudo que for gravado "
                                 "aparece aqui."));
    found_->setText(lines_->HasMore()
                        ? QStringLiteral("As %L1 mais recentes; as outras vêm ao descer na lista").arg(count)
                        : count == 1 ? QStringLiteral("1 linha")
                                     : QStringLiteral("%L1 linhas").arg(count));
}

} // namespace kova::history
