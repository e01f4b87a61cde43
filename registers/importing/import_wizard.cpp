#include "registers/importing/import_wizard.hpp"

#include "family/data/engine/iso_text.hpp"
#include "registers/importing/background_job.hpp"
#include "registers/importing/check_page.hpp"
#include "registers/importing/file_page.hpp"
#include "screens/grows_with_contents.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QHBoxLayout>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kova::registers {

namespace {

namespace csv = family::csv;
using csv::ImportStep;
using family::registers::ChangedRows;
using family::registers::UndoneImport;

constexpr int UsualWidth = 860;
constexpr int UsualHeight = 560;

QString NameOf(ImportStep step)
{
    switch (step) {
    case ImportStep::Checking: return QStringLiteral("Conferindo o arquivo...");
    case ImportStep::CheckingAgain: return QStringLiteral("Conferindo de novo...");
    case ImportStep::Copying: return QStringLiteral("Copiando a loja...");
    case ImportStep::Writing:
    case ImportStep::WritingNew: break;
    }
    return QStringLiteral("Gravando...");
}

/// "yyyy-mm-dd hh:mm:ss"
DateTime MomentOf(const family::Author& author)
{
    constexpr std::size_t Date = 10, Seconds = 17;
    DateTime moment = family::ReadIsoMoment(author.moment.substr(0, Date), author.moment.substr(Date + 1, 5));
    moment.time.second = std::stoi(author.moment.substr(Seconds));
    return moment;
}

} // namespace

ImportWizard::ImportWizard(FileDesk desk, std::string_view registerName, QWidget* parent)
    : QDialog(parent),
      desk_(std::move(desk)),
      pages_(new QStackedWidget(this)),
      file_(new FilePage(registerName, pages_)),
      check_(new CheckPage(pages_)),
      job_(new BackgroundJob(this))
{
    setObjectName(QStringLiteral("Importar"));
    setWindowTitle(QStringLiteral("Importar planilha"));
    setBackgroundRole(QPalette::Base);
    pages_->addWidget(file_);
    pages_->addWidget(check_);
    auto* buttons = new QHBoxLayout;
    back_ = AddButton(*buttons, QStringLiteral("voltar"), QStringLiteral("&Voltar"), &ImportWizard::Back);
    buttons->addStretch(1);
    undoRest_ = AddButton(*buttons, QStringLiteral("desfazerResto"), QStringLiteral("Desfazer o &resto"),
                          &ImportWizard::UndoRest);
    undo_ = AddButton(*buttons, QStringLiteral("desfazer"), QStringLiteral("&Desfazer esta importação"),
                      &ImportWizard::Undo);
    checks_ =
        AddButton(*buttons, QStringLiteral("conferir"), QStringLiteral("Con&ferir"), &ImportWizard::Check);
    import_ =
        AddButton(*buttons, QStringLiteral("importar"), QStringLiteral("&Importar"), &ImportWizard::Write);
    cancel_ =
        AddButton(*buttons, QStringLiteral("cancelar"), QStringLiteral("Cancelar"), &ImportWizard::reject);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(14);
    layout->addWidget(pages_, 1);
    layout->addLayout(buttons);
    Back();
    screens::GrowWithContents(*this, {UsualWidth, UsualHeight});
}

// The work goes before what it is told to.
ImportWizard::~ImportWizard() { delete job_; }

QPushButton* ImportWizard::AddButton(QHBoxLayout& row, const QString& name, const QString& text,
                                     void (ImportWizard::*act)())
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, act] { (this->*act)(); });
    row.addWidget(button);
    return button;
}

void ImportWizard::Offer(std::initializer_list<QPushButton*> buttons)
{
    for (QPushButton* button : {back_, checks_, import_, undo_, undoRest_, cancel_}) {
        button->setVisible(button == cancel_ || std::ranges::find(buttons, button) != buttons.end());
        button->setDefault(false);
    }
    const bool isOver = number_ != 0 && !job_->IsUnderWay();
    cancel_->setText(isOver ? QStringLiteral("Fechar") : QStringLiteral("Cancelar"));
    QPushButton* first = buttons.size() > 0 && !isOver ? *buttons.begin() : cancel_;
    // Enter that comes too often neither ends the work nor takes it back.
    first->setDefault(!job_->IsUnderWay());
    if (pages_->currentWidget() == check_)
        first->setFocus();
}

void ImportWizard::Back()
{
    pages_->setCurrentWidget(file_);
    Offer({checks_});
    // It may have been corrected meanwhile.
    file_->Look();
    file_->setFocus();
}

void ImportWizard::reject()
{
    if (job_->IsUnderWay())
        job_->Stop();
    else
        QDialog::reject();
}

csv::ImportWatch ImportWizard::WatchFrom(std::stop_token stop)
{
    csv::ImportWatch watch;
    watch.stop = std::move(stop);
    watch.problem = [problems = problems_](const csv::Problem& problem) {
        if (problems->size() < CheckPage::MostShown)
            problems->push_back(problem);
    };
    watch.progress = [this, told = -1LL](ImportStep step, long long done, long long total) mutable {
        const long long reached = total == 0 ? 100 : done * 100 / total;
        if (reached == std::exchange(told, reached))
            return;
        job_->Post([this, step, done, total] {
            if (job_->IsUnderWay())
                check_->Reach(NameOf(step), done, total);
        });
    };
    return watch;
}

void ImportWizard::BeginWork(const QString& what)
{
    report_ = std::make_shared<csv::ImportReport>();
    problems_ = std::make_shared<std::vector<csv::Problem>>();
    pages_->setCurrentWidget(check_);
    check_->Begin(what);
}

void ImportWizard::Check()
{
    auto order = file_->Order();
    if (!order)
        return;
    order_ = std::make_shared<const csv::ImportOrder>(*std::move(order));
    BeginWork(NameOf(ImportStep::Checking));
    job_->Begin(
        [this, source = desk_.source, order = order_, report = report_,
         author = desk_.author()](const std::stop_token& stop) {
            *report = csv::RehearseImport(source, *order, author, MomentOf(author), WatchFrom(stop));
        },
        [this](const std::string& failure) { ShowChecked(failure); });
    Offer({});
}

void ImportWizard::ShowChecked(const std::string& failure)
{
    if (!failure.empty())
        check_->ShowFailure(qt::Lines(failure));
    else if (!report_->IsGood())
        check_->ShowProblems(*report_, *problems_);
    else
        check_->ShowGood(*report_);
    if (failure.empty() && report_->IsGood() && report_->Writes())
        Offer({import_, back_});
    else
        Offer({back_});
}

void ImportWizard::Write()
{
    BeginWork(NameOf(ImportStep::Checking));
    const family::Author author = desk_.author();
    job_->Begin(
        [this, source = desk_.source, order = order_, report = report_, author](const std::stop_token& stop) {
            *report = csv::BringIn(source, *order, author, MomentOf(author), WatchFrom(stop));
        },
        [this](const std::string& failure) { ShowWritten(failure); });
    Offer({});
}

void ImportWizard::ShowWritten(const std::string& failure)
{
    if (!failure.empty() || !report_->IsGood())
        return ShowChecked(failure);
    number_ = report_->number;
    check_->ShowWritten(*report_);
    if (number_ == 0)
        return Offer({back_});
    Offer({undo_});
    onWritten();
}

void ImportWizard::TakeBack(ChangedRows changed)
{
    BeginWork(QStringLiteral("Desfazendo..."));
    undone_ = std::make_shared<UndoneImport>();
    job_->Begin(
        [this, source = desk_.source, number = number_, author = desk_.author(), changed,
         undone = undone_](const std::stop_token& stop) {
            family::LongWork work;
            work.stop = stop;
            work.progress = [this](long long done, long long total) {
                job_->Post([this, done, total] {
                    if (job_->IsUnderWay())
                        check_->Reach(QStringLiteral("Desfazendo..."), done, total);
                });
            };
            *undone = csv::TakeBack(source, number, changed, author, work);
        },
        [this](const std::string& failure) { ShowTakenBack(failure); });
    Offer({});
}

void ImportWizard::ShowTakenBack(const std::string& failure)
{
    if (!failure.empty()) {
        check_->ShowFailure(qt::Lines(failure));
        return Offer({undo_});
    }
    if (undone_->IsDone()) {
        check_->ShowUndone(*undone_);
        Offer({});
        return onWritten();
    }
    check_->ShowKept(*undone_);
    if (undone_->outcome == UndoneImport::Outcome::Refused)
        Offer({undoRest_});
    else
        Offer({});
}

} // namespace kova::registers
