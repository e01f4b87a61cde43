#include "host/first_start/services_step.hpp"

#include "family/data/stores/new_shop.hpp"
#include "family/data/stores/usual_services.hpp"
#include "family/registers/description/typed_values.hpp"
#include "screens/refusal_label.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

namespace kova::host {

namespace {

using family::registers::ReadMoney;
using family::registers::ReadWhole;

enum Column { Name, Type, Minutes, Price, ColumnCount };

constexpr int RowHeight = 28;
constexpr int WidthOfNames = 260;
constexpr long long MostMinutes = 24 * 60;
constexpr long long CentsOfReal = 100;
constexpr qsizetype LongestName = 100;

QString MoneyText(long long cents)
{
    return QStringLiteral("%1,%2").arg(cents / CentsOfReal).arg(cents % CentsOfReal, 2, 10, QLatin1Char('0'));
}

QTableWidgetItem* Item(const QString& text, bool isNumber)
{
    auto* item = new QTableWidgetItem(text);
    if (isNumber)
        item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

} // namespace

ServicesStep::ServicesStep(QWidget* parent)
    : NewShopStep(parent),
      table_(new QTableWidget(0, ColumnCount, this)),
      refusal_(new screens::RefusalLabel(this))
{
    auto* heading = new QLabel(QStringLiteral("Os serviços para começar"), this);
    heading->setFont(qt::MakeFont("Arial", 14, true));
    auto* explanation =
        new QLabel(QStringLiteral("Desmarque o que a loja não faz e corrija nomes, durações e preços (F2 ou "
                                  "dois cliques). Depois tudo se altera em Cadastros."),
                   this);
    explanation->setWordWrap(true);
    table_->setObjectName(QStringLiteral("servicos"));
    table_->setAccessibleName(QStringLiteral("Serviços para começar"));
    table_->setHorizontalHeaderLabels({QStringLiteral("Serviço"), QStringLiteral("Tipo"),
                                       QStringLiteral("Duração (minutos)"), QStringLiteral("Preço (R$)")});
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setDefaultSectionSize(RowHeight);
    table_->setShowGrid(false);
    table_->setTabKeyNavigation(false);
    table_->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
                            | QAbstractItemView::AnyKeyPressed);
    refusal_->setObjectName(QStringLiteral("recusa"));
    AddRows();
    table_->resizeColumnsToContents();
    table_->setColumnWidth(Name, WidthOfNames);
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->setCurrentCell(0, Name);
    connect(table_, &QTableWidget::itemChanged, this, [this] { refusal_->Tell({}); });

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(heading);
    layout->addWidget(explanation);
    layout->addWidget(table_, 1);
    layout->addWidget(refusal_);
    setFocusProxy(table_);
}

void ServicesStep::AddRows()
{
    for (const family::UsualService& service : family::UsualServices()) {
        const int row = table_->rowCount();
        table_->insertRow(row);
        auto* name = Item(QString::fromUtf8(service.name), false);
        name->setFlags(name->flags() | Qt::ItemIsUserCheckable);
        name->setCheckState(Qt::Checked);
        auto* type = Item(QString::fromUtf8(service.typeName), false);
        type->setFlags(type->flags() & ~Qt::ItemIsEditable);
        table_->setItem(row, Name, name);
        table_->setItem(row, Type, type);
        table_->setItem(row, Minutes, Item(QString::number(service.minutes), true));
        table_->setItem(row, Price, Item(MoneyText(service.cents), true));
    }
}

bool ServicesStep::IsChosen(int row) const { return table_->item(row, Name)->checkState() == Qt::Checked; }

QString ServicesStep::Cell(int row, int column) const { return table_->item(row, column)->text().trimmed(); }

QString ServicesStep::WhatIsWrongIn(int row, int& column) const
{
    column = Name;
    if (Cell(row, Name).isEmpty() || Cell(row, Name).size() > LongestName)
        return QStringLiteral("O nome do serviço deve ter de 1 a 100 letras.");
    for (int other = 0; other < row; ++other) {
        if (IsChosen(other) && Cell(other, Name) == Cell(row, Name))
            return QStringLiteral("Já há um serviço com este nome.");
    }
    column = Minutes;
    const auto minutes = ReadWhole(Cell(row, Minutes).toStdString());
    if (!minutes || *minutes < 1 || *minutes > MostMinutes)
        return QStringLiteral("A duração é um número inteiro de minutos, de 1 a 1440.");
    column = Price;
    return ReadMoney(Cell(row, Price).toStdString())
        ? QString()
        : QStringLiteral("O preço é um valor em reais, como 60,00.");
}

bool ServicesStep::Accepts()
{
    for (int row = 0; row < table_->rowCount(); ++row) {
        int column = 0;
        const QString wrong = IsChosen(row) ? WhatIsWrongIn(row, column) : QString();
        if (wrong.isEmpty())
            continue;
        table_->setCurrentCell(row, column);
        table_->setFocus();
        refusal_->Tell(QStringLiteral("Linha %1: ").arg(row + 1) + wrong);
        return false;
    }
    return true;
}

void ServicesStep::Fill(family::NewShop& shop) const
{
    const auto usual = family::UsualServices();
    for (int row = 0; row < table_->rowCount(); ++row) {
        if (!IsChosen(row))
            continue;
        const family::UsualService& like = usual[static_cast<std::size_t>(row)];
        family::ServiceRow service;
        service.nome = Cell(row, Name).toStdString();
        service.numeroDoTipo = like.type;
        service.duracaoEmMinutos = static_cast<int>(*ReadWhole(Cell(row, Minutes).toStdString()));
        service.precoEmCentavos = *ReadMoney(Cell(row, Price).toStdString());
        if (like.sessions > 0)
            service.quantidadeDeSessoes = like.sessions;
        shop.services.push_back(service);
    }
}

} // namespace kova::host
