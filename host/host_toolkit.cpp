#include "host/host_toolkit.hpp"

#include "agenda/contracts/text.hpp"
#include "reports/pages.hpp"
#include "toolkits/common/report.hpp"
#include "toolkits/qt/report/report_desk.hpp"

#include <iostream>

namespace kova::host {

namespace {

/// Has what is printed noted.
class NotingDesk final : public qt::ReportDesk {
public:
    explicit NotingDesk(HostToolkit::Note note) : note_(std::move(note)) { }

    void Gone(QWidget* over, const reports::Document& document, const QString& file) override
    {
        const std::string trouble =
            note_(document.title, static_cast<long long>(document.pages.size()), file.toStdString());
        if (!trouble.empty())
            Tell(over, MessageKind::Critical,
                 QStringLiteral("O documento saiu, mas isso não pôde ser anotado na auditoria.\n\n")
                     + QString::fromStdString(trouble));
    }

private:
    const HostToolkit::Note note_;
};

} // namespace

Twips HostToolkit::ScreenWidth() const
{
    return DrawsIntoMemory() ? static_cast<Twips>(drawnWidth_) * TwipsPerPixelX() : QtToolkit::ScreenWidth();
}

void HostToolkit::UnhandledFailure(const Failure& failure)
{
    if (!DrawsIntoMemory())
        QtToolkit::UnhandledFailure(failure);
    else
        std::cerr << "Kovaris: " << failure.Description() << std::endl;
}

Reply HostToolkit::AskUser(MessageKind kind, const Text& text, const Text& title)
{
    if (!DrawsIntoMemory())
        return QtToolkit::AskUser(kind, text, title);
    std::cerr << title << ": " << Replace(text, "\r\n", "\n") << std::endl;
    return kind == MessageKind::Question ? Reply::No : Reply::Ok;
}

// Nobody could close a window that is drawn into memory.
void HostToolkit::RunPreview(const toolkit::ReportModel& report)
{
    if (!DrawsIntoMemory())
        QtToolkit::RunPreview(report);
}

std::unique_ptr<qt::ReportDesk> HostToolkit::MakeReportDesk() const
{
    return note_ ? std::make_unique<NotingDesk>(note_) : QtToolkit::MakeReportDesk();
}

} // namespace kova::host
