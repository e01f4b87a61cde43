#include "registers/person_dialog.hpp"

#include "family/data/engine/database.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/privacy/anonymise_words.hpp"
#include "family/privacy/person_files.hpp"
#include "registers/importing/background_job.hpp"
#include "screens/field_frame.hpp"
#include "screens/grows_with_contents.hpp"
#include "screens/offer.hpp"
#include "screens/plain_label.hpp"
#include "screens/refusal_label.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QCheckBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>
#include <utility>

namespace kova::registers {

namespace {

using family::privacy::AnonymiseAnswer;
using family::privacy::PersonFiles;

constexpr int UsualWidth = 640;
constexpr int RoomBetweenParts = 14;

QLabel* Heading(const QString& text, QWidget* parent)
{
    constexpr double Points = 12;
    auto* label = new QLabel(text, parent);
    label->setFont(qt::MakeFont("Arial", Points, true));
    return label;
}

/// "yyyy-mm-dd hh:mm:ss" as a moment.
DateTime MomentOf(const std::string& kept)
{
    constexpr std::size_t Date = 10, Time = 5;
    return family::ReadIsoMoment(kept.substr(0, Date), kept.substr(Date + 1, Time));
}

} // namespace

PersonDialog::PersonDialog(const Desk& desk, family::Key customer, QWidget* parent)
    : QDialog(parent),
      desk_(desk),
      customer_(customer),
      source_(desk.database->Path()),
      denied_(family::DeniedRightsOf(*desk.database, desk.author())),
      folder_(new QLineEdit(this)),
      code_(new QLineEdit(this)),
      choose_(Button("escolherPasta", QStringLiteral("&Escolher..."))),
      export_(Button("exportar", QStringLiteral("&Gravar arquivos"))),
      anonymise_(Button("anonimizar", QStringLiteral("&Tornar anônimo"))),
      close_(Button("fechar", QStringLiteral("&Fechar"))),
      sameName_(new QCheckBox(
          QStringLiteral("Os agendamentos &sem cadastro que têm só o mesmo nome também são desta pessoa"),
          this)),
      progress_(new QProgressBar(this)),
      failure_(new screens::RefusalLabel(this)),
      told_(screens::MakePlainLabel(QStringLiteral("recado"), this)),
      job_(new BackgroundJob(this))
{
    setObjectName(QStringLiteral("DadosDaPessoa"));
    setWindowTitle(QStringLiteral("Dados da pessoa: cliente %1").arg(customer));
    setBackgroundRole(QPalette::Base);
    auto* layout = new QVBoxLayout(this);
    AddExport(*layout);
    layout->addSpacing(RoomBetweenParts);
    AddAnonymising(*layout);
    layout->addSpacing(RoomBetweenParts);
    AddOutcome(*layout);
    connect(close_, &QPushButton::clicked, this, [this] { reject(); });
    Offer();
    screens::GrowWithContents(*this, {UsualWidth, 0});
    folder_->setFocus();
}

QPushButton* PersonDialog::Button(const char* name, const QString& text)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(QString::fromLatin1(name));
    // Enter in a field does what stands beside that field.
    button->setAutoDefault(false);
    return button;
}

QLabel* PersonDialog::AddText(QVBoxLayout& layout, const QString& text)
{
    auto* label = new QLabel(text, this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    layout.addWidget(label);
    return label;
}

void PersonDialog::AddExport(QVBoxLayout& layout)
{
    layout.addWidget(Heading(QStringLiteral("Exportar"), this));
    AddText(
        layout,
        QStringLiteral("Grava tudo que a loja guarda sobre esta pessoa em dois arquivos: uma página para ler "
                       "e imprimir, e um JSON. Só o seu usuário do computador pode lê-los."));
    folder_->setObjectName(QStringLiteral("pasta"));
    folder_->setText(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    auto* row = new QHBoxLayout;
    row->addWidget(new screens::FieldFrame(QStringLiteral("&Pasta"), folder_, this), 1);
    row->addWidget(choose_, 0, Qt::AlignBottom);
    row->addWidget(export_, 0, Qt::AlignBottom);
    layout.addLayout(row);
    connect(choose_, &QPushButton::clicked, this, [this] { ChooseFolder(); });
    connect(export_, &QPushButton::clicked, this, [this] { Export(); });
    connect(folder_, &QLineEdit::returnPressed, export_, &QPushButton::click);
}

void PersonDialog::AddAnonymising(QVBoxLayout& layout)
{
    layout.addWidget(Heading(QStringLiteral("Tornar anônimo"), this));
    AddText(layout,
            QStringLiteral(
                "Tira o nome, o documento, o endereço, os contatos e as observações desta pessoa, e os "
                "nomes dos seus animais, de todos os registros, também do histórico. Ficam os "
                "agendamentos com datas, serviços, funcionários e valores. O cadastro passa a "
                "excluído. Isso não pode ser desfeito."));
    code_->setObjectName(QStringLiteral("codigo"));
    code_->setMaxLength(18);
    sameName_->setObjectName(QStringLiteral("mesmoNome"));
    sameName_->hide();
    auto* row = new QHBoxLayout;
    const QString label = QStringLiteral("Para confirmar, digite o &código do cliente (%1)").arg(customer_);
    row->addWidget(new screens::FieldFrame(label, code_, this), 1);
    row->addWidget(anonymise_, 0, Qt::AlignBottom);
    layout.addWidget(sameName_);
    layout.addLayout(row);
    connect(code_, &QLineEdit::textChanged, this, [this] { Offer(); });
    connect(code_, &QLineEdit::returnPressed, anonymise_, &QPushButton::click);
    connect(anonymise_, &QPushButton::clicked, this, [this] { Anonymise(); });
}

void PersonDialog::AddOutcome(QVBoxLayout& layout)
{
    progress_->setObjectName(QStringLiteral("andamento"));
    progress_->setAccessibleName(QStringLiteral("Andamento"));
    progress_->hide();
    failure_->setObjectName(QStringLiteral("falha"));
    told_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    told_->hide();
    layout.addWidget(progress_);
    layout.addWidget(failure_);
    layout.addWidget(told_);
    layout.addStretch(1);
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(close_);
    layout.addLayout(row);
}

void PersonDialog::ChooseFolder()
{
    const QString chosen =
        QFileDialog::getExistingDirectory(this, QStringLiteral("Pasta dos arquivos"), folder_->text());
    if (!chosen.isEmpty())
        folder_->setText(chosen);
}

void PersonDialog::Export()
{
    const std::string folder = folder_->text().toStdString();
    const family::Author author = desk_.author();
    auto files = std::make_shared<PersonFiles>();
    Begin(
        [source = source_, code = customer_, folder, author, files](const family::LongWork& work) {
            *files =
                family::privacy::ExportPerson(source, code, folder, author, MomentOf(author.moment), work);
        },
        [this, files] {
            told_->setText(
                QStringLiteral("Gravados:\n%1\n%2")
                    .arg(QString::fromStdString(files->page), QString::fromStdString(files->json)));
        });
}

void PersonDialog::Anonymise()
{
    family::privacy::AnonymiseRequest request{customer_};
    if (!sameName_->isHidden())
        request.sameName = sameName_->isChecked();
    auto answer = std::make_shared<AnonymiseAnswer>();
    Begin(
        [source = source_, request, author = desk_.author(), answer](const family::LongWork& work) {
            *answer = family::privacy::Anonymise(source, request, author, work);
        },
        [this, answer] { ShowAnswer(*answer); });
}

void PersonDialog::ShowAnswer(const AnonymiseAnswer& answer)
{
    if (!answer.undecided.empty())
        sameName_->show();
    if (!answer.IsDone())
        return failure_->Tell(qt::Lines(answer.text));
    isAnonymous_ = true;
    told_->setText(qt::Lines(family::privacy::DoneInWords(source_, customer_, answer)));
}

void PersonDialog::Begin(std::function<void(const family::LongWork&)> act, std::function<void()> done)
{
    failure_->Tell({});
    told_->hide();
    // It goes out of use for the time of the work, and would lose the keyboard for good.
    QWidget* const used = focusWidget();
    progress_->setValue(0);
    progress_->show();
    job_->Begin([this, act = std::move(act)](std::stop_token stop) { act(Followed(std::move(stop))); },
                [this, used, done = std::move(done)](const std::string& failure) {
                    progress_->hide();
                    told_->clear();
                    if (failure.empty())
                        done();
                    else
                        failure_->Tell(qt::Lines(failure));
                    told_->setVisible(!told_->text().isEmpty());
                    Offer();
                    (used != nullptr && used->isEnabled() ? used : close_)->setFocus();
                    MakeRoom();
                });
    Offer();
}

family::LongWork PersonDialog::Followed(std::stop_token stop)
{
    const auto tell = [this, told = -1](long long done, long long total) mutable {
        constexpr long long All = 100;
        const int hundredths = static_cast<int>(total <= 0 ? All : done * All / total);
        if (std::exchange(told, hundredths) != hundredths)
            job_->Post([this, hundredths] { progress_->setValue(hundredths); });
    };
    return {tell, std::move(stop)};
}

void PersonDialog::MakeRoom() { resize(width(), std::max(height(), layout()->totalHeightForWidth(width()))); }

QString PersonDialog::Why(family::Right right) const
{
    return QString::fromStdString(family::WhyOf(denied_, right));
}

void PersonDialog::Offer()
{
    const bool isFree = !job_->IsUnderWay();
    const QString whyNoExport = Why(family::Right::Export);
    screens::Offer(*export_, isFree, whyNoExport.isEmpty() ? Why(family::Right::SeePrices) : whyNoExport);
    choose_->setEnabled(isFree);
    folder_->setEnabled(isFree);
    code_->setEnabled(isFree && !isAnonymous_);
    sameName_->setEnabled(isFree && !isAnonymous_);
    const bool isMeant = code_->text().trimmed() == QString::number(customer_);
    screens::Offer(*anonymise_, isFree && !isAnonymous_ && isMeant, Why(family::Right::Anonymise));
    close_->setText(isFree ? QStringLiteral("&Fechar") : QStringLiteral("&Cancelar"));
}

void PersonDialog::reject()
{
    if (job_->IsUnderWay())
        return job_->Stop();
    QDialog::reject();
}

RecordAction PersonAction()
{
    const auto open = [](const ActionTarget& target) {
        PersonDialog dialog(target.desk, target.key, &target.over);
        dialog.exec();
        return ActionResult{target.key,
                            dialog.IsAnonymous() ? QStringLiteral("O cliente ficou anônimo.") : QString()};
    };
    return {"clientes",
            QStringLiteral("&Dados da pessoa..."),
            open,
            {family::Right::Export, family::Right::Anonymise}};
}

} // namespace kova::registers
