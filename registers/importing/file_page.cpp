#include "registers/importing/file_page.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "family/csv/preview.hpp"
#include "family/csv/registers/all_registers.hpp"
#include "family/data/engine/failure_words.hpp"
#include "family/registers/registers.hpp"
#include "registers/importing/table.hpp"
#include "screens/field_frame.hpp"
#include "screens/plain_label.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QComboBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QTableWidget>

namespace kova::registers {

namespace {

namespace csv = family::csv;
using csv::Known;

constexpr std::size_t LinesOfPreview = 10;

/// Appointments are no register of "Cadastros".
QString TitleOf(const csv::Register& one)
{
    const auto* of = family::registers::RegisterNamed(one.name);
    return of == nullptr ? QStringLiteral("Agendamentos") : Shown(of->Name().title);
}

/// It may be narrower than the longest of its choices, and so may the window.
QComboBox* Box(const QString& name)
{
    constexpr int LeastLettersOfChoice = 8;
    auto* box = new QComboBox;
    box->setObjectName(name);
    box->setMinimumHeight(screens::BoxHeight);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(LeastLettersOfChoice);
    return box;
}

QString NameOfSeparator(char separator)
{
    if (separator == '\t')
        return QStringLiteral("tabulações");
    return separator == ',' ? QStringLiteral("vírgulas") : QStringLiteral("ponto e vírgula");
}

} // namespace

FilePage::FilePage(std::string_view registerName, QWidget* parent)
    : QWidget(parent),
      path_(new QLineEdit),
      register_(Box(QStringLiteral("cadastro"))),
      known_(Box(QStringLiteral("conhecidos"))),
      encoding_(Box(QStringLiteral("codificacao"))),
      pathFrame_(new screens::FieldFrame(QStringLiteral("&Arquivo CSV da planilha"), path_, this, true)),
      choose_(new QPushButton(QStringLiteral("&Escolher arquivo..."), this)),
      told_(screens::MakePlainLabel(QStringLiteral("lido"), this)),
      preview_(ReadOnlyTable(QStringLiteral("previa"), QStringLiteral("Primeiras linhas do arquivo"), this))
{
    path_->setObjectName(QStringLiteral("arquivo"));
    choose_->setObjectName(QStringLiteral("escolher"));
    for (const csv::Register* one : csv::Registers()) {
        register_->addItem(TitleOf(*one));
        if (one->name == registerName)
            register_->setCurrentIndex(register_->count() - 1);
    }
    encoding_->addItems({QStringLiteral("Reconhecer"), QStringLiteral("UTF-8"), QStringLiteral("Latin-1")});
    OfferKnown();
    LayOut();
    setFocusProxy(path_);
    connect(choose_, &QPushButton::clicked, this, [this] { ChooseFile(); });
    connect(path_, &QLineEdit::editingFinished, this, [this] { Look(); });
    connect(path_, &QLineEdit::textEdited, this, [this] { Clear(); });
    connect(encoding_, &QComboBox::activated, this, [this] { Look(); });
    connect(register_, &QComboBox::currentIndexChanged, this, [this] { OfferKnown(); });
}

void FilePage::LayOut()
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(10);
    grid->addWidget(pathFrame_, 0, 0, 1, 2);
    grid->addWidget(choose_, 0, 2, Qt::AlignBottom);
    grid->addWidget(new screens::FieldFrame(QStringLiteral("&Cadastro"), register_, this), 1, 0);
    grid->addWidget(new screens::FieldFrame(QStringLiteral("O que já está na &loja"), known_, this), 1, 1);
    grid->addWidget(new screens::FieldFrame(QStringLiteral("Co&dificação"), encoding_, this), 1, 2);
    grid->addWidget(told_, 2, 0, 1, 3);
    grid->addWidget(preview_, 3, 0, 1, 3);
    grid->setColumnStretch(0, 2);
    grid->setColumnStretch(1, 3);
    grid->setRowStretch(3, 1);
}

const csv::Register& FilePage::Into() const
{
    return *csv::Registers()[static_cast<std::size_t>(register_->currentIndex())];
}

void FilePage::OfferKnown()
{
    known_->clear();
    if (csv::TakesUpdates(Into()))
        known_->addItem(QStringLiteral("Muda o registro que tem o mesmo código"),
                        static_cast<int>(Known::Updated));
    known_->addItem(QStringLiteral("Fica de fora"), static_cast<int>(Known::LeftOut));
    known_->addItem(QStringLiteral("É um erro"), static_cast<int>(Known::Refused));
}

void FilePage::ChooseFile()
{
    const QString file =
        QFileDialog::getOpenFileName(this, QStringLiteral("Importar planilha"),
                                     QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                                     QStringLiteral("Planilhas em CSV (*.csv *.txt);;Todos os arquivos (*)"));
    if (file.isEmpty())
        return;
    path_->setText(file);
    Look();
}

void FilePage::Look()
{
    if (!path_->text().trimmed().isEmpty())
        Order();
}

void FilePage::Clear()
{
    pathFrame_->Refuse({});
    told_->clear();
    FillTable(*preview_, {}, {});
}

std::optional<csv::ImportOrder> FilePage::Order()
{
    Clear();
    const std::string path = path_->text().trimmed().toStdString();
    if (path.empty()) {
        pathFrame_->Refuse(QStringLiteral("Informe o arquivo."));
        return std::nullopt;
    }
    try {
        std::optional<csv::Encoding> encoding;
        if (encoding_->currentIndex() > 0)
            encoding = encoding_->currentIndex() == 1 ? csv::Encoding::Utf8 : csv::Encoding::Latin1;
        csv::FileText file = csv::ReadTextFile(path, encoding);
        ShowPreview(file);
        const char separator = csv::RecogniseSeparator(file.text);
        return csv::ImportOrder{&Into(), path, std::move(file), separator,
                                static_cast<Known>(known_->currentData().toInt())};
    } catch (const std::exception& failure) {
        pathFrame_->Refuse(qt::Lines(WithoutDetail(family::WordsFor(failure))));
        return std::nullopt;
    }
}

void FilePage::ShowPreview(const csv::FileText& file)
{
    const char separator = csv::RecogniseSeparator(file.text);
    const csv::Preview preview = csv::PreviewOf(file.text, separator, LinesOfPreview);
    told_->setText(QStringLiteral("Lido em %1, com as colunas separadas por %2: %3. Se os acentos abaixo não "
                                  "estão certos, escolha outra codificação.")
                       .arg(Shown(csv::NameOf(file.encoding)), NameOfSeparator(separator),
                            Counted(preview.records, "linha", "linhas")));
    std::vector<QStringList> rows;
    for (const std::vector<std::string>& cells : preview.rows)
        rows.push_back(Shown(cells));
    FillTable(*preview_, Shown(preview.titles), rows);
}

} // namespace kova::registers
