#include "registers/related_panel.hpp"

#include "family/data/engine/database_failure.hpp"
#include "registers/row_list.hpp"
#include "registers/row_model.hpp"
#include "screens/field_frame.hpp"
#include "screens/plain_label.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

namespace kova::registers {

namespace {

constexpr int RoomAbove = 8;

QString Shown(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

RelatedPanel::RelatedPanel(const family::registers::RelatedList& of, const Desk& desk, QWidget* parent)
    : QWidget(parent),
      list_(of),
      desk_(desk),
      rows_(new RowModel(of, desk, this)),
      choiceName_(new QLabel(QLatin1Char('&') + Shown(of.ChoiceName()), this)),
      choice_(new QComboBox(this)),
      table_(MakeRowList(*rows_, Shown(of.Title()), this)),
      told_(screens::MakePlainLabel(QStringLiteral("quantos"), this))
{
    setFocusProxy(table_);
    table_->setObjectName(QStringLiteral("relacionados"));
    choice_->setObjectName(QStringLiteral("escolha"));
    choice_->setAccessibleName(Shown(of.ChoiceName()));
    choice_->setMinimumHeight(screens::BoxHeight);
    choiceName_->setBuddy(choice_);
    for (QWidget* part : {static_cast<QWidget*>(choiceName_), static_cast<QWidget*>(choice_)})
        part->setVisible(!of.ChoiceName().empty());
    connect(choice_, &QComboBox::activated, this, [this] { Try([this] { Find(); }); });

    auto* choiceRow = new QHBoxLayout;
    choiceRow->addWidget(choiceName_);
    choiceRow->addWidget(choice_, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, RoomAbove, 0, 0);
    layout->addLayout(choiceRow);
    layout->addWidget(table_, 1);
    layout->addWidget(told_);
}

void RelatedPanel::ShowPrices(bool areShown)
{
    registers::ShowPrices(*table_, list_.ListColumns(), areShown);
}

void RelatedPanel::Show(family::Key key)
{
    key_ = key;
    isRead_ = false;
    if (isVisible())
        Read();
}

void RelatedPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!isRead_)
        Read();
}

void RelatedPanel::Read()
{
    isRead_ = true;
    Try([this] {
        OfferChoices();
        Find();
    });
    FitColumns(*table_);
}

void RelatedPanel::Try(const std::function<void()>& read)
{
    try {
        read();
    } catch (const family::DatabaseFailure& failure) {
        rows_->Show({});
        told_->setText(qt::Lines(failure.Description()));
    }
}

void RelatedPanel::OfferChoices()
{
    choice_->clear();
    choice_->addItem(QStringLiteral("Todos"), qlonglong(0));
    if (key_ == 0)
        return;
    for (const auto& one : list_.Choices(*desk_.database, key_))
        choice_->addItem(QString::fromStdString(one.shown), static_cast<qlonglong>(one.key));
}

void RelatedPanel::Find()
{
    const family::Key choice = choice_->currentData().toLongLong();
    rows_->Show(key_ == 0 ? std::vector<family::Key>() : list_.Find(*desk_.database, key_, choice));
    Tell(rows_->rowCount());
    if (rows_->rowCount() > 0)
        table_->setCurrentIndex(rows_->index(0, 0));
}

void RelatedPanel::Tell(int count)
{
    told_->setText(count == 0       ? Shown(list_.None())
                       : count == 1 ? QStringLiteral("1 encontrado")
                                    : QStringLiteral("%L1 encontrados").arg(count));
}

} // namespace kova::registers
