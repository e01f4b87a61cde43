#include "host/host_toolkit.hpp"

#include "agenda/contracts/text.hpp"
#include "toolkits/common/report.hpp"

#include <iostream>

namespace kova::host {

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

} // namespace kova::host
