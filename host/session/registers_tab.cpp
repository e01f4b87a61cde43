#include "host/session/registers_tab.hpp"

#include "family/business/current_author.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/registers/access/access_registers.hpp"
#include "family/users/user_rights.hpp"
#include "host/folders.hpp"
#include "host/session/tab_explanation.hpp"
#include "host/session/user_change.hpp"
#include "host/shell/main_window.hpp"
#include "host/sign_in/user_dialogs.hpp"
#include "registers/company_question.hpp"
#include "registers/registers_page.hpp"
#include "screens/run_alone.hpp"
#include "system/path_text.hpp"

#include <QCryptographicHash>

namespace kova::host {

namespace {

bool MayAdminister(const registers::Desk& desk)
{
    try {
        return family::WhyDenied(*desk.database, desk.author(), family::Right::AdministerUsers).empty();
    } catch (const Failure&) {
        return false;
    }
}

/// A folder for each shop; the name tells nobody where it lies.
QString DraftsOf(const std::string& source)
{
    constexpr int Digits = 16;
    const QByteArray hash =
        QCryptographicHash::hash(QByteArray::fromStdString(source), QCryptographicHash::Sha256);
    return QString::fromStdString(system::TextOf(DraftsFolder())) + QLatin1Char('/')
        + QString::fromLatin1(hash.toHex().left(Digits));
}

} // namespace

RegistersTab::RegistersTab(std::string source, ObjectRef user, const Clock& clock, UserChange& change)
    : source_(std::move(source)), user_(std::move(user)), clock_(clock), change_(change)
{
}

void RegistersTab::AddTo(MainWindow& window)
{
    window.AddTab(QStringLiteral("Cadastros"), [this](QWidget& parent) { return MakePage(parent); });
}

registers::Desk RegistersTab::OpenDesk() const
{
    return {family::OpenDatabase(source_), [this] { return family::CurrentAuthor(user_, clock_); }};
}

std::string RegistersTab::AskForCompany()
{
    const registers::Desk desk = OpenDesk();
    registers::CompanyQuestion question(desk, nullptr);
    screens::RunAlone(question);
    return question.TradeName();
}

bool RegistersTab::MayLeave() { return page_ == nullptr || page_->MayLeave(); }

QWidget* RegistersTab::MakePage(QWidget& parent)
{
    try {
        registers::Desk desk = OpenDesk();
        desk.drafts = std::make_shared<screens::DraftFolder>(DraftsOf(source_));
        registers::RegistersChoice choice;
        choice.actions.push_back(SecretsAction());
        choice.actions.insert(choice.actions.end(), more_.begin(), more_.end());
        choice.guarded = {&family::registers::UserRegister(), &family::registers::RoleRegister()};
        choice.showsGuarded = [desk] { return MayAdminister(desk); };
        page_ = new registers::RegistersPage(std::move(desk), &parent, std::move(choice));
        change_.Follow(*page_, [this] { page_->Refresh(); });
        return page_;
    } catch (const Failure& failure) {
        return ExplanationInTab(QStringLiteral("Os cadastros não puderam ser abertos."),
                                failure.Description(), parent);
    }
}

} // namespace kova::host
