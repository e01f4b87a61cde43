// What forms and boxes did goes into the log.

#include "toolkits/common/shortcuts.hpp"
#include "toolkits/headless/log_lines.hpp"
#include "toolkits/headless/toolkit.hpp"

namespace kova::headless {

namespace {

Reply Offered(MessageKind kind, Reply reply)
{
    if (kind != MessageKind::Question)
        return Reply::Ok;
    return reply == Reply::Yes ? Reply::Yes : Reply::No;
}

} // namespace

void HeadlessToolkit::Write(std::string line)
{
    log_.push_back(std::move(line));
    if (listener_)
        listener_(Text(log_.back()));
}

void HeadlessToolkit::LogPause(Double seconds) { Write(lines::Pause(seconds)); }

Reply HeadlessToolkit::AskUser(MessageKind kind, const Text& text, const Text& title)
{
    const Reply reply = Offered(kind, GetDriver().Answer(kind, text, title));
    Write(lines::Box(kind, text, title, reply));
    return reply;
}

void HeadlessToolkit::ShowKeys(const toolkit::FormModel& form, const std::vector<toolkit::KeyHelp>& keys)
{
    for (std::string& line : lines::Help(form, keys))
        Write(std::move(line));
}

void HeadlessToolkit::LogReport(const toolkit::ReportModel& report, const reports::Document& pages)
{
    Write(lines::Report(report, pages));
}

void HeadlessToolkit::UnhandledFailure(const Failure& failure)
{
    failures_.push_back(failure);
    Write(lines::Unhandled(failure));
}

void HeadlessToolkit::FormShows(const toolkit::FormModel& form, ShowMode mode)
{
    Write(lines::Shows(form, mode));
}

void HeadlessToolkit::FormHides(const toolkit::FormModel& form) { Write(lines::Hides(form)); }

void HeadlessToolkit::FormUnloads(const toolkit::FormModel& form) { Write(lines::Unloads(form)); }

void HeadlessToolkit::FormRepaints(const toolkit::FormModel& form) { Write(lines::Repaints(form)); }

void HeadlessToolkit::CodeFocuses(const toolkit::WidgetCore& widget) { Write(lines::Focuses(widget)); }

void HeadlessToolkit::FormPopsUp(const toolkit::FormModel&, const toolkit::MenuModel& parent, Twips x,
                                 Twips y)
{
    Write(lines::PopsUp(parent, x, y));
}

void HeadlessToolkit::KeysAreSent(const Text& keys) { Write(lines::Keys(keys)); }

} // namespace kova::headless
