#include "host/first_start/company_step.hpp"

#include "family/data/engine/fold_text.hpp"
#include "family/data/stores/new_shop.hpp"
#include "family/registers/registers.hpp"
#include "family/registers/shop/shop_columns.hpp"
#include "screens/field_frame.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>

namespace kova::host {

namespace {

using screens::FieldFrame;

constexpr int LongestName = 100;
constexpr int LongestNickname = 50;
constexpr int LongestDocument = 20;
constexpr int LongestPhone = 30;
constexpr int LongestAddress = 200;
constexpr int LongestPath = 1000;

QLineEdit& BoxOf(FieldFrame& frame) { return static_cast<QLineEdit&>(frame.Editor()); }

std::string TextOf(FieldFrame& frame) { return BoxOf(frame).text().trimmed().toStdString(); }

/// Writes the text as the company's register keeps it, or says why it cannot be one.
void Tidy(FieldFrame& frame, std::string_view label)
{
    using namespace family::registers;
    const Register& company = CompanyRegister();
    const TidyText tidy = company.Tidy(FieldNamed(company.Fields(), label), {}, TextOf(frame));
    BoxOf(frame).setText(QString::fromStdString(tidy.text));
    if (!tidy.why.empty())
        frame.Refuse(QString::fromStdString(Sentence(tidy.why)));
}

/// Without what a file's name cannot hold on one system or another.
QString FileNameFor(const QString& shop)
{
    static const QRegularExpression unfit(QStringLiteral(R"([\\/:*?"<>|\x00-\x1f]+)"));
    const QString name = QString(shop).replace(unfit, QStringLiteral(" ")).simplified();
    return (name.isEmpty() || name.startsWith(QLatin1Char('.')) ? QStringLiteral("loja") : name)
        + QStringLiteral(".db");
}

} // namespace

CompanyStep::CompanyStep(const Beginning& beginning, QWidget* parent)
    : NewShopStep(parent), documents_(beginning.documents)
{
    tradeName_ = AddField(QStringLiteral("fantasia"), QStringLiteral("&Nome fantasia"), LongestName, true);
    legalName_ = AddField(QStringLiteral("razao"), QStringLiteral("&Razão social"), LongestName, false);
    document_ = AddField(QStringLiteral("documento"), QStringLiteral("CN&PJ ou CPF"), LongestDocument, false);
    phone_ = AddField(QStringLiteral("telefone"), QStringLiteral("&Telefone"), LongestPhone, false);
    address_ = AddField(QStringLiteral("endereco"), QStringLiteral("&Endereço"), LongestAddress, false);
    nickname_ =
        AddField(QStringLiteral("apelido"), QStringLiteral("Primeiro(a) &funcionário(a), como é chamado(a)"),
                 LongestNickname, true);
    employee_ = AddField(QStringLiteral("funcionario"), QStringLiteral("Nome co&mpleto do(a) funcionário(a)"),
                         LongestName, false);
    file_ = AddField(QStringLiteral("arquivo"), QStringLiteral("Arqu&ivo em que a loja fica guardada"),
                     LongestPath, true);
    LayOut();
    setFocusProxy(&BoxOf(*tradeName_));
    Propose(beginning);
    connect(&BoxOf(*tradeName_), &QLineEdit::textEdited, this, [this] { ProposeFile(); });
    connect(&BoxOf(*file_), &QLineEdit::textEdited, this, [this] { fileIsChosen_ = true; });
}

void CompanyStep::LayOut()
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(10);
    auto* heading = new QLabel(QStringLiteral("A empresa e quem trabalha nela"), this);
    heading->setFont(qt::MakeFont("Arial", 14, true));
    grid->addWidget(heading, 0, 0, 1, 2);
    const std::pair<FieldFrame*, QPoint> places[] = {{tradeName_, {0, 1}}, {legalName_, {1, 1}},
                                                     {document_, {0, 2}},  {phone_, {1, 2}},
                                                     {nickname_, {0, 4}},  {employee_, {1, 4}}};
    for (const auto& [frame, place] : places)
        grid->addWidget(frame, place.y(), place.x());
    grid->addWidget(address_, 3, 0, 1, 2);
    grid->addWidget(file_, 5, 0, 1, 2);
    auto* browse = new QPushButton(QStringLiteral("E&scolher outra pasta..."), this);
    browse->setObjectName(QStringLiteral("pasta"));
    connect(browse, &QPushButton::clicked, this, [this] { ChooseFile(); });
    grid->addWidget(browse, 6, 0, Qt::AlignLeft);
    grid->setRowStretch(7, 1);
}

FieldFrame* CompanyStep::AddField(const QString& name, const QString& label, int longest, bool isRequired)
{
    auto* box = new QLineEdit;
    box->setObjectName(name);
    box->setMaxLength(longest);
    auto* frame = new FieldFrame(label, box, this, isRequired);
    connect(box, &QLineEdit::textEdited, frame, [frame] { frame->Refuse({}); });
    return frame;
}

void CompanyStep::Propose(const Beginning& beginning)
{
    BoxOf(*nickname_).setText(QString::fromStdString(beginning.user));
    ProposeFile();
}

/// The file bears the company's name until another was chosen.
void CompanyStep::ProposeFile()
{
    if (!fileIsChosen_)
        BoxOf(*file_).setText(
            QDir(QString::fromStdString(documents_)).filePath(FileNameFor(BoxOf(*tradeName_).text())));
}

void CompanyStep::ChooseFile()
{
    const QString file = QFileDialog::getSaveFileName(
        this, QStringLiteral("Onde guardar a loja"), BoxOf(*file_).text(),
        QStringLiteral("Bancos de dados (*.db)"), nullptr, QFileDialog::DontConfirmOverwrite);
    if (file.isEmpty())
        return;
    BoxOf(*file_).setText(file);
    file_->Refuse({});
    fileIsChosen_ = true;
}

bool CompanyStep::Accepts()
{
    const std::pair<FieldFrame*, const char*> required[] = {
        {tradeName_, "Informe o nome fantasia da empresa."},
        {nickname_, "Informe como o(a) primeiro(a) funcionário(a) é chamado(a)."},
        {file_, "Informe o arquivo em que a loja fica guardada."}};
    Tidy(*document_, family::registers::shop_columns::CompanyNumber);
    Tidy(*phone_, family::registers::shop_columns::Phone);
    for (const auto& [frame, reason] : required) {
        if (TextOf(*frame).empty())
            frame->Refuse(QString::fromUtf8(reason));
    }
    for (FieldFrame* frame : {tradeName_, document_, phone_, nickname_, file_}) {
        if (!frame->IsRefused())
            continue;
        BoxOf(*frame).setFocus();
        return false;
    }
    return true;
}

void CompanyStep::Fill(family::NewShop& shop) const
{
    shop.company = {0,
                    TextOf(*tradeName_),
                    TextOf(*legalName_),
                    family::DocumentOf(TextOf(*document_)),
                    TextOf(*address_),
                    TextOf(*phone_)};
    shop.employee = TextOf(*nickname_);
    shop.nameOfEmployee = TextOf(*employee_);
}

std::string CompanyStep::File() const { return TextOf(*file_); }

} // namespace kova::host
