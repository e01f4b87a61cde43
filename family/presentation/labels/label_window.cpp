#include "family/presentation/labels/label_window.hpp"

#include "family/presentation/labels/label_picture.hpp"
#include "family/presentation/labels/label_sheet_view.hpp"
#include "family/presentation/scrolled_body.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace kova::family {

namespace {

constexpr int MostCopies = 999;

QString ToQString(const Text& text) { return QString::fromStdString(text); }

QLabel* LabelFor(QWidget* field, const QString& text)
{
    auto* label = new QLabel(text);
    label->setBuddy(field);
    field->setAccessibleName(QString(text).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
    return label;
}

QSpinBox* NumberBox(const char* name, int most)
{
    auto* box = new QSpinBox;
    box->setObjectName(QString::fromLatin1(name));
    box->setRange(1, most);
    return box;
}

} // namespace

LabelWindow::LabelWindow(PostalAddress address, const LabelChoice& choice, LabelDesk& desk, Date day,
                         QWidget* parent)
    : QDialog(parent), address_(std::move(address)), desk_(desk), day_(day)
{
    setObjectName(QStringLiteral("etiqueta"));
    setWindowTitle(QStringLiteral("Etiqueta de endereço"));
    setWindowModality(Qt::ApplicationModal);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(20);
    columns->addLayout(MakeFields(choice));
    columns->addLayout(MakeSheetSide(), 1);
    auto* body = new ScrolledBody(columns, this);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(16, 14, 16, 14);
    rows->setSpacing(12);
    rows->addWidget(body, 1);
    rows->addLayout(MakeButtons());
    // Behind the fields, although it is made with the sheet's side.
    setTabOrder(nickname_, view_);
    auto* help = new QShortcut(QKeySequence(Qt::Key_F1), this);
    connect(help, &QShortcut::activated, this, [this] { ShowWindowKeys(this, Keys()); });
    FollowSheet();
    copies_->setFocus();
    copies_->selectAll();
    FitToScreen(*this, *body);
}

QLayout* LabelWindow::MakeFields(const LabelChoice& choice)
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(8);
    AddSheets(*grid, choice);
    AddNumbers(*grid);
    nickname_ = new QCheckBox(QStringLiteral("Imprimir também o &apelido/nome fantasia"));
    nickname_->setObjectName(QStringLiteral("apelido"));
    nickname_->setChecked(choice.withNickname);
    connect(nickname_, &QCheckBox::toggled, this, [this] { Refresh(); });
    grid->addWidget(nickname_, 5, 0, 1, 4);
    picture_ = new LabelPicture(this);
    picture_->setAccessibleName(QStringLiteral("Etiqueta em tamanho real"));
    grid->addWidget(picture_, 6, 0, 1, 4);
    summary_ = new QLabel;
    summary_->setObjectName(QStringLiteral("resumo"));
    grid->addWidget(summary_, 7, 0, 1, 4);
    grid->setRowStretch(6, 1);
    return grid;
}

void LabelWindow::AddSheets(QGridLayout& grid, const LabelChoice& choice)
{
    sheets_ = new QComboBox;
    sheets_->setObjectName(QStringLiteral("folha"));
    for (const LabelSheet& sheet : LabelSheets())
        sheets_->addItem(ToQString(NameOf(sheet)), QString::fromLatin1(sheet.key));
    sheets_->setCurrentIndex(
        std::max(0, sheets_->findData(QString::fromLatin1(LabelSheetOf(choice.sheetKey).key))));
    connect(sheets_, &QComboBox::currentIndexChanged, this, [this] { FollowSheet(); });
    grid.addWidget(LabelFor(sheets_, QStringLiteral("&Folha de etiquetas:")), 0, 0, 1, 4);
    grid.addWidget(sheets_, 1, 0, 1, 4);
}

void LabelWindow::AddNumbers(QGridLayout& grid)
{
    copies_ = NumberBox("quantidade", MostCopies);
    row_ = NumberBox("linha", 1);
    column_ = NumberBox("coluna", 1);
    const auto choose = [this] {
        ChooseFirst((row_->value() - 1) * run_.sheet->columns + column_->value() - 1);
    };
    connect(copies_, &QSpinBox::valueChanged, this, [this] { Refresh(); });
    connect(row_, &QSpinBox::valueChanged, this, choose);
    connect(column_, &QSpinBox::valueChanged, this, choose);
    grid.addWidget(LabelFor(copies_, QStringLiteral("&Quantidade de etiquetas:")), 2, 0, 1, 3);
    grid.addWidget(copies_, 2, 3);
    grid.addWidget(new QLabel(QStringLiteral("Primeira etiqueta livre na folha:")), 3, 0, 1, 4);
    grid.addWidget(LabelFor(row_, QStringLiteral("&Linha:")), 4, 0);
    grid.addWidget(row_, 4, 1);
    grid.addWidget(LabelFor(column_, QStringLiteral("&Coluna:")), 4, 2);
    grid.addWidget(column_, 4, 3);
}

QLayout* LabelWindow::MakeSheetSide()
{
    view_ = new LabelSheetView(this);
    view_->setObjectName(QStringLiteral("posicao"));
    view_->setToolTip(QStringLiteral("Clique na primeira etiqueta livre da folha, ou use as setas"));
    view_->chosen = [this](int position) { ChooseFirst(position); };
    auto* column = new QVBoxLayout;
    column->setSpacing(6);
    column->addWidget(LabelFor(view_, QStringLiteral("&Visualização (clique na primeira etiqueta livre):")));
    column->addWidget(view_, 1);
    column->addLayout(MakeSheetTurner());
    return column;
}

QLayout* LabelWindow::MakeSheetTurner()
{
    auto* row = new QHBoxLayout;
    const auto turner = [&](const char* name, Qt::ArrowType arrow, const char* key, const QString& purpose,
                            int step) {
        auto* button = new QToolButton;
        button->setObjectName(QString::fromLatin1(name));
        button->setArrowType(arrow);
        button->setShortcut(QKeySequence(QString::fromLatin1(key)));
        button->setAccessibleName(purpose);
        button->setToolTip(QStringLiteral("%1 (%2)").arg(purpose, QString::fromLatin1(key)));
        connect(button, &QToolButton::clicked, this, [this, step] { ShowSheet(view_->Sheet() + step); });
        return button;
    };
    before_ = turner("anterior", Qt::LeftArrow, "PgUp", QStringLiteral("Folha anterior"), -1);
    after_ = turner("proxima", Qt::RightArrow, "PgDown", QStringLiteral("Próxima folha"), 1);
    sheetNumber_ = new QLabel;
    sheetNumber_->setObjectName(QStringLiteral("numero"));
    row->addStretch();
    row->addWidget(before_);
    row->addWidget(sheetNumber_);
    row->addWidget(after_);
    row->addStretch();
    return row;
}

QPushButton* LabelWindow::Button(QLayout& row, const char* name, const QString& text,
                                 void (LabelWindow::*act)())
{
    auto* button = new QPushButton(text);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, act);
    row.addWidget(button);
    return button;
}

QLayout* LabelWindow::MakeButtons()
{
    auto* row = new QHBoxLayout;
    status_ = new QLabel;
    status_->setObjectName(QStringLiteral("situacao"));
    status_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->addWidget(status_, 1);
    Button(*row, "salvar", QStringLiteral("&Salvar em PDF"), &LabelWindow::SavePdf);
    Button(*row, "imprimir", QStringLiteral("&Imprimir"), &LabelWindow::Print)->setDefault(true);
    Button(*row, "fechar", QStringLiteral("Fec&har"), &LabelWindow::reject);
    return row;
}

std::vector<WindowKey> LabelWindow::Keys() const
{
    std::vector<WindowKey> keys{{QStringLiteral("Enter"), QStringLiteral("Imprimir")},
                                {QStringLiteral("Alt+S"), QStringLiteral("Salvar em PDF")},
                                {QStringLiteral("← → ↑ ↓"),
                                 QStringLiteral("Na folha desenhada, escolher a primeira etiqueta livre")}};
    if (before_->isEnabled())
        keys.push_back({QStringLiteral("PgUp"), before_->accessibleName()});
    if (after_->isEnabled())
        keys.push_back({QStringLiteral("PgDn"), after_->accessibleName()});
    keys.push_back({QStringLiteral("Tab"), QStringLiteral("Ir para o próximo campo")});
    keys.push_back({QStringLiteral("Esc"), QStringLiteral("Fechar")});
    keys.push_back({QStringLiteral("F1"), QStringLiteral("Mostrar esta ajuda")});
    return keys;
}

LabelChoice LabelWindow::Choice() const { return {run_.sheet->key, nickname_->isChecked()}; }

void LabelWindow::FollowSheet()
{
    run_.sheet = &LabelSheetOf(sheets_->currentData().toString().toStdString());
    ChooseFirst(0);
}

void LabelWindow::ChooseFirst(int position)
{
    run_.first = position;
    const QSignalBlocker quietRow(row_);
    const QSignalBlocker quietColumn(column_);
    row_->setMaximum(run_.sheet->rows);
    column_->setMaximum(run_.sheet->columns);
    row_->setValue(position / run_.sheet->columns + 1);
    column_->setValue(position % run_.sheet->columns + 1);
    Refresh();
}

void LabelWindow::Refresh()
{
    run_.copies = copies_->value();
    const std::vector<LabelLine> lines = LinesOf(address_, nickname_->isChecked());
    pages_ = LabelPages(run_, lines, metrics_);
    pages_.title = "Etiqueta de endereço - " + (address_.name.empty() ? address_.nickname : address_.name);
    const reports::Box place = BoxOfLabel(*run_.sheet, 0);
    const reports::Box label{0, 0, place.width, place.height};
    picture_->Show({FitLabel(lines, label, metrics_)}, label);
    view_->Show(run_, pages_);
    summary_->setText(Summary());
    status_->clear();
    ShowSheet(0);
}

void LabelWindow::ShowSheet(int sheet)
{
    view_->ShowSheet(sheet);
    const auto sheets = static_cast<int>(pages_.pages.size());
    sheetNumber_->setText(QStringLiteral("Folha %1 de %2").arg(view_->Sheet() + 1).arg(sheets));
    before_->setEnabled(view_->Sheet() > 0);
    after_->setEnabled(view_->Sheet() + 1 < sheets);
}

QString LabelWindow::Summary() const
{
    const LabelPlace last = PlaceOfCopy(*run_.sheet, run_.first, run_.copies - 1);
    const int free = run_.sheet->Labels() - last.position - 1;
    const auto sheets = pages_.pages.size();
    const QString used = sheets == 1 ? QStringLiteral("1 folha") : QStringLiteral("%1 folhas").arg(sheets);
    if (free == 0)
        return used + QStringLiteral("; nenhuma etiqueta sobra na última");
    return used
        + (free == 1 ? QStringLiteral("; sobra 1 etiqueta na última")
                     : QStringLiteral("; sobram %1 etiquetas na última").arg(free));
}

void LabelWindow::Print()
{
    ShowDelivered(paper::PrintFrom(*this, desk_, pages_, LabelPrinting(*run_.sheet)));
}

void LabelWindow::SavePdf() { ShowDelivered(paper::SaveFrom(*this, desk_, pages_, day_)); }

void LabelWindow::ShowDelivered(const paper::Delivered& delivered)
{
    if (delivered.text.isEmpty())
        return;
    status_->setText(delivered.text);
    status_->setToolTip(delivered.toolTip);
}

} // namespace kova::family
