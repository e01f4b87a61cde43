#include "host/session/registers_tab.hpp"

#include "family/business/current_author.hpp"
#include "family/data/sources/data_source.hpp"
#include "host/folders.hpp"
#include "host/session/user_change.hpp"
#include "host/shell/main_window.hpp"
#include "registers/company_question.hpp"
#include "registers/registers_page.hpp"
#include "screens/run_alone.hpp"
#include "system/path_text.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QCryptographicHash>
#include <QLabel>

namespace kova::host {

namespace {

QWidget* Explanation(const QString& text, QWidget& parent)
{
    auto* label = new QLabel(text, &parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignCenter);
    label->setMargin(80);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
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
        page_ = new registers::RegistersPage(std::move(desk), &parent);
        change_.Follow(*page_, [this] { page_->Refresh(); });
        return page_;
    } catch (const Failure& failure) {
        return Explanation(QStringLiteral("Os cadastros não puderam ser abertos.\n\n")
                               + qt::Lines(failure.Description())
                               + QStringLiteral("\n\nCorrija a causa e abra o programa novamente."),
                           parent);
    }
}

} // namespace kova::host
