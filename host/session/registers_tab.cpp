#include "host/session/registers_tab.hpp"

#include "family/business/current_author.hpp"
#include "family/data/sources/data_source.hpp"
#include "host/shell/main_window.hpp"
#include "registers/company_question.hpp"
#include "registers/registers_page.hpp"
#include "screens/run_alone.hpp"
#include "toolkits/qt/look/theme.hpp"

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

} // namespace

RegistersTab::RegistersTab(std::string source, ObjectRef user, const Clock& clock)
    : source_(std::move(source)), user_(std::move(user)), clock_(clock)
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
        page_ = new registers::RegistersPage(OpenDesk(), &parent);
        return page_;
    } catch (const Failure& failure) {
        return Explanation(QStringLiteral("Os cadastros não puderam ser abertos.\n\n")
                               + qt::Lines(failure.Description())
                               + QStringLiteral("\n\nCorrija a causa e abra o programa novamente."),
                           parent);
    }
}

} // namespace kova::host
