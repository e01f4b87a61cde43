#include "registers/importing/export_dialog.hpp"

#include "family/csv/exporting.hpp"
#include "family/csv/registers/all_registers.hpp"
#include "registers/importing/background_job.hpp"
#include "registers/importing/table.hpp"
#include "screens/field_frame.hpp"
#include "screens/grows_with_contents.hpp"
#include "screens/plain_label.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

#include <utility>

namespace kova::registers {

namespace {

namespace csv = family::csv;

constexpr int UsualWidth = 640;

QPushButton* Button(const QString& name, const QString& text, QWidget* parent)
{
    auto* button = new QPushButton(text, parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

/// In the user's documents, named after the register.
QString ProposedPath(const csv::Register& of)
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + QLatin1Char('/')
        + Shown(of.name) + QStringLiteral(".csv");
}

} // namespace

ExportDialog::ExportDialog(FileDesk desk, std::string_view registerName, QWidget* parent)
    : QDialog(parent),
      desk_(std::move(desk)),
      register_(*csv::RegisterNamed(registerName)),
      path_(new QLineEdit(ProposedPath(register_))),
      frame_(new screens::FieldFrame(QStringLiteral("&Arquivo novo"), path_, this, true)),
      told_(screens::MakePlainLabel(QStringLiteral("resumo"), this)),
      progress_(new QProgressBar(this)),
      choose_(Button(QStringLiteral("escolher"), QStringLiteral("E&scolher..."), this)),
      export_(Button(QStringLiteral("exportar"), QStringLiteral("&Exportar"), this)),
      cancel_(Button(QStringLiteral("cancelar"), QStringLiteral("Cancelar"), this)),
      job_(new BackgroundJob(this))
{
    setObjectName(QStringLiteral("Exportar"));
    setWindowTitle(QStringLiteral("Exportar planilha"));
    setBackgroundRole(QPalette::Base);
    path_->setObjectName(QStringLiteral("arquivo"));
    told_->setText(QStringLiteral("Um arquivo CSV em UTF-8, que a planilha abre e que, editado, pode ser "
                                  "importado de novo."));
    progress_->setObjectName(QStringLiteral("progresso"));
    progress_->setAccessibleName(QStringLiteral("Progresso"));
    progress_->hide();
    export_->setDefault(true);
    LayOut();
    connect(choose_, &QPushButton::clicked, this, [this] { ChooseFile(); });
    connect(export_, &QPushButton::clicked, this, [this] { Write(); });
    connect(cancel_, &QPushButton::clicked, this, [this] { reject(); });
    connect(path_, &QLineEdit::textEdited, this, [this] { frame_->Refuse({}); });
    path_->setFocus();
    path_->selectAll();
}

// The work goes before what it is told to.
ExportDialog::~ExportDialog() { delete job_; }

void ExportDialog::LayOut()
{
    auto* file = new QHBoxLayout;
    file->addWidget(frame_, 1);
    file->addWidget(choose_, 0, Qt::AlignBottom);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(export_);
    buttons->addWidget(cancel_);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(told_);
    layout->addLayout(file);
    layout->addWidget(progress_);
    layout->addStretch(1);
    layout->addLayout(buttons);
    screens::GrowWithContents(*this, {UsualWidth, 0});
}

void ExportDialog::ChooseFile()
{
    const QString file =
        QFileDialog::getSaveFileName(this, QStringLiteral("Exportar planilha"), path_->text(),
                                     QStringLiteral("Planilhas em CSV (*.csv);;Todos os arquivos (*)"),
                                     nullptr, QFileDialog::DontConfirmOverwrite);
    if (!file.isEmpty())
        path_->setText(file);
}

void ExportDialog::reject()
{
    if (job_->IsUnderWay())
        job_->Stop();
    else
        QDialog::reject();
}

void ExportDialog::Write()
{
    const std::string path = path_->text().trimmed().toStdString();
    frame_->Refuse(path.empty() ? QStringLiteral("Informe o arquivo.") : QString());
    if (path.empty())
        return;
    export_->setEnabled(false);
    progress_->setRange(0, 0);
    progress_->show();
    cancel_->setFocus();
    auto records = std::make_shared<long long>(0);
    job_->Begin(
        [this, source = desk_.source, order = csv::ExportOrder{&register_, path}, author = desk_.author(),
         records](const std::stop_token& stop) {
            family::LongWork work;
            work.stop = stop;
            work.progress = [this, told = -1LL](long long done, long long total) mutable {
                const long long reached = total == 0 ? 100 : done * 100 / total;
                if (reached != std::exchange(told, reached))
                    job_->Post([this, reached] {
                        progress_->setRange(0, 100);
                        progress_->setValue(static_cast<int>(reached));
                    });
            };
            *records = csv::ExportTo(source, order, author, work);
        },
        [this, records](const std::string& failure) { ShowWritten(*records, failure); });
}

void ExportDialog::ShowWritten(long long records, const std::string& failure)
{
    progress_->hide();
    export_->setEnabled(true);
    if (!failure.empty()) {
        frame_->Refuse(qt::Lines(failure));
        return path_->setFocus();
    }
    told_->setText(Counted(records, "linha exportada", "linhas exportadas") + QStringLiteral(" para ")
                   + path_->text().trimmed() + QStringLiteral("."));
    export_->hide();
    frame_->hide();
    choose_->hide();
    cancel_->setText(QStringLiteral("Fechar"));
    cancel_->setDefault(true);
    cancel_->setFocus();
}

} // namespace kova::registers
