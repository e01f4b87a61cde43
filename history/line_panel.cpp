#include "history/line_panel.hpp"

#include "family/business/clash_text.hpp"
#include "family/history/changes.hpp"
#include "screens/plain_label.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace kova::history {

namespace {

using family::history::Change;

constexpr double TitlePoints = 13;
constexpr int LongestTip = 300;

QString FieldText(const std::string& text)
{
    return text.empty() ? QStringLiteral("(vazio)") : QString::fromStdString(text);
}

QTableWidgetItem* Cell(const QString& text)
{
    auto* cell = new QTableWidgetItem(text);
    cell->setTextAlignment(Qt::AlignTop | Qt::AlignLeft);
    cell->setToolTip(screens::PlainTip(text.left(LongestTip)));
    return cell;
}

QTableWidget* MakeTable(QWidget* parent)
{
    auto* table = new QTableWidget(0, 3, parent);
    table->setObjectName(QStringLiteral("campos"));
    table->setAccessibleName(QStringLiteral("Campos, antes e depois"));
    table->setHorizontalHeaderLabels(
        {QStringLiteral("Campo"), QStringLiteral("Antes"), QStringLiteral("Depois")});
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignVCenter | Qt::AlignLeft);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setTabKeyNavigation(false);
    table->setShowGrid(false);
    table->setWordWrap(true);
    return table;
}

} // namespace

LinePanel::LinePanel(const Desk& desk, QWidget* parent)
    : QWidget(parent),
      desk_(desk),
      title_(screens::MakePlainLabel(QStringLiteral("ato"), this)),
      who_(screens::MakePlainLabel(QStringLiteral("quem"), this)),
      why_(screens::MakePlainLabel(QStringLiteral("motivo"), this)),
      changes_(MakeTable(this)),
      undo_(new QPushButton(QStringLiteral("&Desfazer..."), this))
{
    title_->setFont(qt::MakeFont("Arial", TitlePoints, true));
    undo_->setObjectName(QStringLiteral("desfazer"));
    connect(undo_, &QPushButton::clicked, this, [this] { onUndo(); });
    LayOut();
}

void LinePanel::LayOut()
{
    auto* below = new QHBoxLayout;
    below->addWidget(undo_, 0, Qt::AlignTop);
    below->addWidget(why_, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 0, 0, 0);
    layout->addWidget(title_);
    layout->addWidget(who_);
    layout->addWidget(changes_, 1);
    layout->addLayout(below);
    setFocusProxy(changes_);
}

void LinePanel::Show(const std::optional<family::history::Line>& line)
{
    line_ = line;
    changes_->setRowCount(0);
    plan_ = {};
    setVisible(line.has_value());
    if (!line)
        return;
    title_->setText(QString::fromStdString(family::history::ActOf(*line)));
    who_->setText(QString::fromStdString(family::PersonOf(line->audit) + ", em "
                                         + family::MomentOf(line->audit)
                                         + (line->isArchived ? ", no arquivo da auditoria" : "")));
    ShowChanges();
    plan_ = family::history::PlanUndo(*desk_.database, desk_.author(), *line);
    ShowPlan();
}

void LinePanel::ShowChanges()
{
    const std::vector<Change> changes = family::history::ChangesOf(*desk_.database, desk_.author(), *line_);
    changes_->setRowCount(static_cast<int>(changes.size()));
    for (int row = 0; row < changes_->rowCount(); ++row) {
        const Change& change = changes[static_cast<std::size_t>(row)];
        changes_->setItem(row, 0, Cell(QString::fromStdString(change.caption)));
        changes_->setItem(row, 1, Cell(FieldText(change.before)));
        changes_->setItem(row, 2, Cell(FieldText(change.after)));
    }
    if (!changes.empty())
        changes_->setCurrentCell(0, 0);
}

// It stays in use, so that it says why to whoever presses it.
void LinePanel::ShowPlan()
{
    const QString why = qt::Lines(plan_.why);
    why_->setText(why);
    const QString tip = plan_.IsPossible() ? QStringLiteral("Ctrl+Z\n") + qt::Lines(plan_.what) : why;
    undo_->setToolTip(screens::PlainTip(tip.left(LongestTip)));
    undo_->setAccessibleDescription(plan_.IsPossible() ? qt::Lines(plan_.what) : why);
}

} // namespace kova::history
