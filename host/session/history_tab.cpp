#include "host/session/history_tab.hpp"

#include "family/business/audit_words.hpp"
#include "family/business/current_author.hpp"
#include "family/data/archive/audit_archive.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/registers/access/access_registers.hpp"
#include "family/registers/registers.hpp"
#include "host/session/tab_explanation.hpp"
#include "host/session/user_change.hpp"
#include "host/shell/main_window.hpp"
#include "screens/offer.hpp"

#include <QAction>
#include <QMenu>
#include <QShortcut>

#include <span>
#include <vector>

namespace kova::host {

namespace {

using family::registers::Register;

/// "10 - José Antônio" where people look for it so, "O animal 50" else.
QString Called(const Register& of, family::Database& database, family::Key key)
{
    std::string called = family::WordsOfTable(of.Table()).one + " " + std::to_string(key);
    called.front() = static_cast<char>(called.front() - 'a' + 'A');
    const auto rows = of.Rows(database, std::span(&key, 1));
    if (rows.empty() || rows.front().cells.empty())
        return QString::fromStdString(called);
    const std::string& name = rows.front().cells.front();
    const bool isPerson =
        std::string_view(of.Table()) == "cliente" || std::string_view(of.Table()) == "usuario";
    return QString::fromStdString(isPerson ? std::to_string(key) + " - " + name : called + " (" + name + ")");
}

} // namespace

HistoryTab::HistoryTab(std::string source, ObjectRef user, const Clock& clock, UserChange& change)
    : source_(std::move(source)), user_(std::move(user)), clock_(clock), change_(change)
{
}

void HistoryTab::AddTo(MainWindow& window)
{
    window_ = &window;
    tab_ = window.AddTab(QStringLiteral("Histórico"), [this](QWidget& parent) { return MakePage(parent); });
    const auto show = [this] { window_->ShowTab(tab_); };
    entry_ = window.Menu().addAction(QStringLiteral("&Histórico\tCtrl+H"), &window, show);
    // The menu is not always there to hear the key, and who may not turn to the tab is told why.
    QObject::connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_H), &window), &QShortcut::activated,
                     &window, show);
}

void HistoryTab::LookAtRights(const family::DeniedRights& denied)
{
    const QString why = QString::fromStdString(family::WhyOf(denied, family::Right::SeeHistory));
    window_->OfferTab(tab_, why);
    screens::Offer(*entry_, true, why);
}

registers::RecordActions HistoryTab::Actions()
{
    std::vector<const Register*> all(family::registers::Registers().begin(),
                                     family::registers::Registers().end());
    all.push_back(&family::registers::UserRegister());
    all.push_back(&family::registers::RoleRegister());
    registers::RecordActions actions;
    for (const Register* of : all)
        actions.push_back({of->Name().name,
                           QStringLiteral("&Histórico"),
                           [this, of](const registers::ActionTarget& target) {
                               ShowRow(of->Table(), target.key,
                                       Called(*of, *target.desk.database, target.key));
                               return registers::ActionResult{target.key};
                           },
                           {family::Right::SeeHistory}});
    return actions;
}

void HistoryTab::ShowRow(const std::string& table, family::Key key, const QString& called)
{
    window_->ShowTab(tab_);
    if (page_)
        page_->ShowRow(table, key, called);
}

QWidget* HistoryTab::MakePage(QWidget& parent)
{
    try {
        const std::shared_ptr<family::Database> database = family::OpenDatabase(source_);
        page_ = new history::HistoryPage(
            {database, [this] { return family::CurrentAuthor(user_, clock_); },
             [database](const std::optional<std::string>& file) -> std::shared_ptr<family::Database> {
                 return family::OpenSearchableArchive(*database, file);
             }},
            &parent);
        change_.Follow(*page_, [page = page_.data()] { page->Refresh(); });
        return page_;
    } catch (const Failure& failure) {
        return ExplanationInTab(QStringLiteral("O histórico não pôde ser aberto."), failure.Description(),
                                parent);
    }
}

} // namespace kova::host
