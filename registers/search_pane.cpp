#include "registers/search_pane.hpp"

#include "registers/register_words.hpp"
#include "registers/row_list.hpp"
#include "registers/row_model.hpp"
#include "registers/trying.hpp"
#include "screens/plain_label.hpp"
#include "screens/search_box.hpp"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTableView>

#include <algorithm>

namespace kova::registers {

using family::registers::Listed;

namespace {

constexpr int RoomBeforeForm = 8;

} // namespace

SearchPane::SearchPane(const Register& of, const Desk& desk, QWidget* parent)
    : QWidget(parent),
      register_(of),
      desk_(desk),
      rows_(new RowModel(of, desk, this)),
      search_(new screens::SearchBox(QStringLiteral("pesquisa"), QStringLiteral("Pesquisar (F3)"), this)),
      inactive_(new QCheckBox(QStringLiteral("Mostrar inativos"), this)),
      list_(MakeRowList(*rows_, TitleOf(of), this)),
      found_(screens::MakePlainLabel(QStringLiteral("encontrados"), this)),
      aboveList_(new QHBoxLayout),
      belowList_(new QHBoxLayout)
{
    search_->setAccessibleName(QStringLiteral("Pesquisar"));
    inactive_->setObjectName(QStringLiteral("inativos"));
    inactive_->setToolTip(QStringLiteral("Ctrl+I"));
    inactive_->setVisible(of.HasInactive());
    LayOut();
    Connect();
    setFocusProxy(search_);
    Find(0);
    FitColumns(*list_);
}

void SearchPane::LayOut()
{
    aboveList_->addWidget(search_, 1);
    belowList_->addWidget(found_, 1);
    belowList_->addWidget(inactive_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, RoomBeforeForm, 0);
    column->addLayout(aboveList_);
    column->addWidget(list_, 1);
    column->addLayout(belowList_);
}

// What stands below the list needs the room of its widest part: it stands one below the other where it is
// narrow.
QSize SearchPane::minimumSizeHint() const
{
    int width = aboveList_->minimumSize().width();
    for (int part = 0; part < belowList_->count(); ++part)
        width = std::max(width, belowList_->itemAt(part)->minimumSize().width());
    return {width + RoomBeforeForm, layout()->minimumSize().height()};
}

void SearchPane::resizeEvent(QResizeEvent* event)
{
    int needed = RoomBeforeForm;
    for (int part = 0; part < belowList_->count(); ++part)
        needed += belowList_->itemAt(part)->minimumSize().width() + belowList_->spacing();
    belowList_->setDirection(width() < needed ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    QWidget::resizeEvent(event);
}

void SearchPane::Put(QPushButton& add, QPushButton* addMany)
{
    aboveList_->addWidget(&add);
    if (addMany != nullptr)
        belowList_->addWidget(addMany);
}

void SearchPane::Connect()
{
    connect(search_, &screens::SearchBox::textChanged, this, [this] { onSought(); });
    connect(inactive_, &QCheckBox::toggled, this, [this] { onSought(); });
    connect(list_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& row) {
                if (!isMarking_ && row.isValid())
                    onTurned(rows_->KeyAt(row.row()));
            });
    connect(list_, &QTableView::activated, this, [this] { onOpened(); });
    search_->WalkThrough(*list_);
    search_->onEnter = [this] { OpenFound(); };
}

void SearchPane::Find(family::Key marked)
{
    isMarking_ = true;
    Try(*this, [this] {
        rows_->Show(register_.Find(*desk_.database, search_->text().toStdString(), WhichRows()));
        found_->setText(Found());
    });
    isMarking_ = false;
    Mark(marked);
}

Listed SearchPane::WhichRows() const
{
    return register_.HasInactive() && !inactive_->isChecked() ? Listed::Active : Listed::All;
}

QString SearchPane::Found() const
{
    const int count = rows_->rowCount();
    if (count > 0)
        return count == 1 ? QStringLiteral("1 encontrado") : QStringLiteral("%L1 encontrados").arg(count);
    const bool isAll = WhichRows() == Listed::All;
    const std::size_t hidden =
        isAll ? 0 : register_.Find(*desk_.database, search_->text().toStdString()).size();
    if (hidden > 0)
        return QStringLiteral("Nenhum ativo; %L1 entre os inativos").arg(hidden);
    return search_->text().isEmpty()
        ? QStringLiteral("Ainda não há nenhum registro. Preencha a ficha e salve o primeiro.")
        : QStringLiteral("0 encontrados");
}

void SearchPane::Mark(family::Key key)
{
    isMarking_ = true;
    const int row = key == 0 ? -1 : rows_->RowOf(key);
    if (row < 0)
        list_->selectionModel()->clear();
    else
        list_->setCurrentIndex(rows_->index(row, 0));
    isMarking_ = false;
}

family::Key SearchPane::FirstFound() const { return rows_->rowCount() > 0 ? rows_->KeyAt(0) : 0; }

void SearchPane::OpenFound()
{
    if (!list_->currentIndex().isValid() && rows_->rowCount() > 0)
        list_->setCurrentIndex(rows_->index(0, 0));
    onOpened();
}

void SearchPane::FocusSearch()
{
    search_->setFocus(Qt::ShortcutFocusReason);
    search_->selectAll();
}

void SearchPane::TurnInactive()
{
    if (register_.HasInactive())
        inactive_->toggle();
}

void SearchPane::ShowPrices(bool areShown)
{
    registers::ShowPrices(*list_, register_.ListColumns(), areShown);
}

} // namespace kova::registers
