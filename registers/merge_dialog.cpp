#include "registers/merge_dialog.hpp"

#include "family/data/engine/database_failure.hpp"
#include "family/registers/registers.hpp"
#include "registers/merge_text.hpp"
#include "registers/row_list.hpp"
#include "registers/row_model.hpp"
#include "screens/grows_with_contents.hpp"
#include "screens/plain_label.hpp"
#include "screens/question.hpp"
#include "screens/refusal_label.hpp"
#include "screens/search_box.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace kova::registers {

namespace {

using family::registers::AlikeAnimals;
using family::registers::MergeAnswer;

constexpr int UsualWidth = 760;
constexpr int UsualHeight = 560;
constexpr int LinesOfPlan = 5;
constexpr int HeightOfAnimals = 90;

} // namespace

MergeDialog::MergeDialog(const ActionTarget& target, QWidget* parent)
    : QDialog(parent),
      desk_(target.desk),
      kept_(target.key),
      rows_(new RowModel(family::registers::CustomerRegister(), desk_, this)),
      search_(new screens::SearchBox(QStringLiteral("pesquisaDoOutro"), QStringLiteral("Pesquisar"), this)),
      list_(MakeRowList(*rows_, QStringLiteral("Clientes"), this)),
      plan_(screens::MakePlainLabel(QStringLiteral("plano"), this)),
      alikeTitle_(screens::MakePlainLabel(QStringLiteral("tituloDosAnimais"), this)),
      alike_(new QListWidget(this)),
      failure_(new screens::RefusalLabel(this)),
      merge_(new QPushButton(QStringLiteral("&Unir"), this))
{
    setObjectName(QStringLiteral("unir"));
    setWindowTitle(QStringLiteral("Unir com outro cadastro"));
    setBackgroundRole(QPalette::Base);
    list_->setObjectName(QStringLiteral("outros"));
    alike_->setObjectName(QStringLiteral("animais"));
    failure_->setObjectName(QStringLiteral("falha"));
    merge_->setObjectName(QStringLiteral("unirCadastros"));
    merge_->setDefault(true);
    LayOut();
    search_->WalkThrough(*list_);
    connect(search_, &screens::SearchBox::textChanged, this, [this] { Find(); });
    connect(list_->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] { Plan(); });
    connect(merge_, &QPushButton::clicked, this, [this] { Merge(); });
    Find();
    FitColumns(*list_);
    search_->setFocus();
}

void MergeDialog::LayOut()
{
    auto* title = new QLabel(QStringLiteral("&Quem é a mesma pessoa ou empresa?"), this);
    title->setBuddy(search_);
    search_->setAccessibleName(QStringLiteral("Quem é a mesma pessoa ou empresa?"));
    plan_->setMinimumHeight(plan_->fontMetrics().lineSpacing() * LinesOfPlan);
    plan_->setAlignment(Qt::AlignTop);
    plan_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    alikeTitle_->setText(QStringLiteral("&Animais que são o mesmo:"));
    alikeTitle_->setBuddy(alike_);
    alike_->setAccessibleName(QStringLiteral("Animais que são o mesmo"));
    alike_->setFixedHeight(HeightOfAnimals);
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(merge_, QDialogButtonBox::AcceptRole);
    QPushButton* cancel = buttons->addButton(QStringLiteral("&Cancelar"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cancelar"));
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addWidget(search_);
    layout->addWidget(list_, 1);
    layout->addWidget(plan_);
    layout->addWidget(alikeTitle_);
    layout->addWidget(alike_);
    layout->addWidget(failure_);
    layout->addWidget(buttons);
    screens::GrowWithContents(*this, {UsualWidth, UsualHeight});
}

void MergeDialog::Try(const std::function<void()>& act)
{
    failure_->Tell({});
    try {
        act();
    } catch (const family::DatabaseFailure& failure) {
        failure_->Tell(qt::Lines(failure.Description()));
    }
}

void MergeDialog::Find()
{
    Try([this] {
        auto keys =
            family::registers::CustomerRegister().Find(*desk_.database, search_->text().toStdString());
        std::erase(keys, kept_);
        rows_->Show(std::move(keys));
    });
    if (rows_->rowCount() == 1)
        list_->setCurrentIndex(rows_->index(0, 0));
    Plan();
}

void MergeDialog::Plan()
{
    planned_.reset();
    const family::Key other = rows_->KeyAt(list_->currentIndex().row());
    QString told = QStringLiteral("Procure e marque o cadastro repetido.");
    if (other != 0)
        Try([&] {
            planned_ = family::registers::PlanCustomerMerge(*desk_.database, kept_, other);
            told = planned_ ? TextOf(*planned_)
                            : QString::fromStdString(
                                family::registers::WhatBecameOfEither(*desk_.database, kept_, other));
        });
    plan_->setText(told);
    merge_->setEnabled(planned_.has_value());
    ShowAlike();
}

void MergeDialog::ShowAlike()
{
    alike_->clear();
    for (const AlikeAnimals& pair : planned_ ? planned_->alike : std::vector<AlikeAnimals>()) {
        auto* item = new QListWidgetItem(
            QStringLiteral("%1, %2 (códigos %3 e %4)")
                .arg(QString::fromStdString(pair.name), QString::fromStdString(pair.species))
                .arg(pair.kept)
                .arg(pair.other),
            alike_);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    alike_->setCurrentRow(0);
    for (QWidget* part : {static_cast<QWidget*>(alikeTitle_), static_cast<QWidget*>(alike_)})
        part->setVisible(alike_->count() > 0);
}

std::vector<AlikeAnimals> MergeDialog::Joined() const
{
    std::vector<AlikeAnimals> joined;
    for (int row = 0; row < alike_->count(); ++row) {
        if (alike_->item(row)->checkState() == Qt::Checked)
            joined.push_back(planned_->alike[static_cast<std::size_t>(row)]);
    }
    return joined;
}

void MergeDialog::Merge()
{
    if (!planned_
        || !screens::AskWhether(*this, QStringLiteral("Unir os dois cadastros? Isto não pode ser desfeito.")))
        return;
    Try([this] {
        ShowAnswer(family::registers::MergeCustomers(*desk_.database, *planned_, Joined(), desk_.author()));
    });
}

void MergeDialog::ShowAnswer(const MergeAnswer& answer)
{
    switch (answer.outcome) {
    case MergeAnswer::Outcome::Done: done_ = TextOf(answer); return accept();
    case MergeAnswer::Outcome::Changed:
    case MergeAnswer::Outcome::Gone: screens::ShowWarning(*this, qt::Lines(answer.text));
    }
    Find();
}

RecordAction MergeAction()
{
    return {family::registers::CustomerRegister().Name().name,
            QStringLiteral("&Unir com outro cadastro..."),
            [](const ActionTarget& target) {
                MergeDialog dialog(target, &target.over);
                dialog.exec();
                return ActionResult{target.key, dialog.Done()};
            },
            {family::Right::ChangeRegisters}};
}

} // namespace kova::registers
