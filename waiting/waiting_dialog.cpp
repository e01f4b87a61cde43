#include "waiting/waiting_dialog.hpp"

#include "family/data/engine/iso_text.hpp"
#include "family/waiting/waiting_writes.hpp"
#include "registers/trying.hpp"
#include "screens/grows_with_contents.hpp"
#include "screens/plain_label.hpp"
#include "screens/question.hpp"
#include "screens/row_table.hpp"
#include "toolkits/qt/look/theme.hpp"
#include "waiting/entry_dialog.hpp"
#include "waiting/waiting_words.hpp"

#include <QAccessible>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

namespace kova::waiting {

namespace {

constexpr QSize UsualSize(980, 460);
constexpr std::size_t NoRow = static_cast<std::size_t>(-1);

} // namespace

WaitingDialog::WaitingDialog(Desk desk, QWidget* parent)
    : WaitingDialog(std::move(desk), std::nullopt, parent)
{
}

WaitingDialog::WaitingDialog(Desk desk, const family::waiting::FreedPlace& freed, QWidget* parent)
    : WaitingDialog(std::move(desk), std::optional(freed), parent)
{
}

WaitingDialog::WaitingDialog(Desk desk, std::optional<family::waiting::FreedPlace> freed, QWidget* parent)
    : QDialog(parent),
      desk_(std::move(desk)),
      freed_(std::move(freed)),
      cells_(new QStandardItemModel(this)),
      list_(screens::MakeRowTable(*cells_, QStringLiteral("Quem espera"), this)),
      told_(screens::MakePlainLabel(QStringLiteral("recado"), this)),
      add_(new QPushButton(QStringLiteral("&Adicionar"), this)),
      change_(new QPushButton(QStringLiteral("A&lterar"), this)),
      giveUp_(new QPushButton(QStringLiteral("&Desistiu"), this)),
      book_(new QPushButton(QStringLiteral("&Marcar"), this))
{
    setObjectName(QStringLiteral("ListaDeEspera"));
    setWindowTitle(freed_ ? QStringLiteral("Quem espera por esse horário")
                          : QStringLiteral("Lista de espera"));
    setBackgroundRole(QPalette::Base);
    LayOut();
    Read();
    list_->setFocus();
}

void WaitingDialog::LayOut()
{
    auto* buttons = new QHBoxLayout;
    const auto add = [&](QPushButton* button, const char* name, const char* tip, const QKeySequence& key,
                         auto act) {
        button->setObjectName(QString::fromUtf8(name));
        button->setToolTip(QString::fromUtf8(tip));
        buttons->addWidget(button);
        connect(button, &QPushButton::clicked, this, act);
        if (!key.isEmpty())
            connect(new QShortcut(key, this), &QShortcut::activated, button, [button] { button->click(); });
    };
    add(add_, "adicionar", "Adicionar alguém que espera (F2)", Qt::Key_F2, [this] { Add(); });
    add(change_, "alterar", "Alterar o que espera (F6)", Qt::Key_F6, [this] { Change(); });
    add(giveUp_, "desistiu", "Não espera mais (F8)", Qt::Key_F8, [this] { GiveUp(); });
    buttons->addStretch(1);
    add(book_, "marcar", "Marcar para quem espera (Enter)", {}, [this] { Book(); });
    auto* close = new QPushButton(QStringLiteral("&Fechar"), this);
    add(close, "fechar", "Fechar (Esc)", {}, [this] { reject(); });
    book_->setDefault(true);
    add_->setVisible(!freed_);

    auto* layout = new QVBoxLayout(this);
    list_->setObjectName(QStringLiteral("espera"));
    layout->addWidget(list_, 1);
    layout->addWidget(told_);
    layout->addLayout(buttons);
    connect(list_, &QTableView::activated, this, [this] { Book(); });
    screens::GrowWithContents(*this, UsualSize);
}

void WaitingDialog::Read()
{
    const family::Key marked = Marked() == NoRow ? 0 : rows_[Marked()].entry.row.codigo;
    registers::Try(*this, [this] {
        family::Database& database = *desk_.data.database;
        rows_.clear();
        if (freed_) {
            for (family::waiting::WaitingFit& fit : family::waiting::WhoFits(database, *freed_, desk_.now()))
                rows_.push_back({fit.entry, fit});
        } else {
            for (family::WaitingEntry& entry :
                 family::FindOpenWaiting(database, family::IsoDate(desk_.now().date)))
                rows_.push_back({std::move(entry), std::nullopt});
        }
    });
    registers::Try(*this, [this] { Show(); });
    int row = 0;
    for (std::size_t at = 0; at < rows_.size(); ++at) {
        if (rows_[at].entry.row.codigo == marked)
            row = static_cast<int>(at);
    }
    if (!rows_.empty())
        list_->setCurrentIndex(cells_->index(row, 0));
    for (QPushButton* button : {change_, giveUp_, book_})
        button->setEnabled(!rows_.empty());
    if (rows_.empty())
        Tell(freed_ ? QStringLiteral("Ninguém espera por esse horário.")
                    : QStringLiteral("Ninguém espera. F2 adiciona."));
}

void WaitingDialog::Show()
{
    family::Database& database = *desk_.data.database;
    cells_->clear();
    cells_->setHorizontalHeaderLabels(ColumnsOfWaiting(freed_.has_value()));
    for (const Waiter& row : rows_) {
        QStringList texts = CellsOf(database, row.entry, desk_.now());
        if (row.fit)
            texts.insert(1, TextOfPlace(database, *row.fit));
        QList<QStandardItem*> items;
        for (const QString& text : texts) {
            auto* item = new QStandardItem(text);
            item->setEditable(false);
            item->setToolTip(screens::PlainTip(text));
            items.append(item);
        }
        cells_->appendRow(items);
    }
    constexpr int Room = 16, Widest = 240;
    for (int column = 0; column < cells_->columnCount(); ++column)
        screens::FitColumn(*list_, column, Room, Widest);
    list_->horizontalHeader()->setStretchLastSection(true);
}

std::size_t WaitingDialog::Marked() const
{
    const int row = list_->currentIndex().row();
    return row < 0 || static_cast<std::size_t>(row) >= rows_.size() ? NoRow : static_cast<std::size_t>(row);
}

void WaitingDialog::Add()
{
    EntryDialog dialog(desk_, std::nullopt, this);
    if (dialog.exec() == QDialog::Accepted) {
        Read();
        Tell(QStringLiteral("Na lista de espera: %1.").arg(dialog.Saved()));
    }
}

void WaitingDialog::Change()
{
    if (Marked() == NoRow)
        return;
    EntryDialog dialog(desk_, rows_[Marked()].entry, this);
    if (dialog.exec() == QDialog::Accepted) {
        Read();
        Tell(QStringLiteral("Alterado: %1.").arg(dialog.Saved()));
    }
}

void WaitingDialog::GiveUp()
{
    if (Marked() == NoRow)
        return;
    const family::WaitingEntry entry = rows_[Marked()].entry;
    registers::Try(*this, [&] {
        const QString who = WhoWaits(*desk_.data.database, entry);
        if (!screens::AskWhether(*this, QStringLiteral("%1 não espera mais?").arg(who)))
            return;
        const family::waiting::WaitingAnswer answer = family::waiting::GiveUp(
            *desk_.data.database, entry.row.codigo, entry.row.versao, desk_.data.author());
        if (!answer.IsDone())
            screens::ShowWarning(*this, qt::Lines(answer.text));
        Read();
        if (answer.IsDone())
            Tell(QStringLiteral("Saiu da lista de espera: %1.").arg(who));
    });
}

void WaitingDialog::Book()
{
    if (Marked() == NoRow)
        return;
    chosen_ = rows_[Marked()];
    accept();
}

void WaitingDialog::Tell(const QString& text)
{
    told_->setText(text);
    QAccessibleEvent said(told_, QAccessible::Alert);
    QAccessible::updateAccessibility(&said);
}

} // namespace kova::waiting
