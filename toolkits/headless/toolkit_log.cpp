// The lines that tell what forms and boxes did.

#include "agenda/contracts/text.hpp"
#include "toolkits/headless/quoted.hpp"
#include "toolkits/headless/toolkit.hpp"

namespace kova::headless {

namespace {

const char* WordFor(MessageKind kind)
{
    switch (kind) {
    case MessageKind::Information: return "information";
    case MessageKind::Critical: return "critical";
    case MessageKind::Question: return "question";
    case MessageKind::Plain: return "plain";
    }
    return "";
}

const char* WordFor(Reply reply)
{
    switch (reply) {
    case Reply::Ok: return "ok";
    case Reply::Yes: return "yes";
    case Reply::No: return "no";
    }
    return "";
}

std::string Number(Twips length) { return TextOf(static_cast<Double>(length), '.'); }

Reply Offered(MessageKind kind, Reply reply)
{
    if (kind != MessageKind::Question)
        return Reply::Ok;
    return reply == Reply::Yes ? Reply::Yes : Reply::No;
}

} // namespace

Text Quoted(std::string_view text)
{
    Text quoted = "\"";
    for (const char byte : text) {
        switch (byte) {
        case '"': quoted += "\\\""; break;
        case '\\': quoted += "\\\\"; break;
        case '\r': quoted += "\\r"; break;
        case '\n': quoted += "\\n"; break;
        default: quoted += byte;
        }
    }
    return quoted + "\"";
}

void HeadlessToolkit::Write(std::string line)
{
    log_.push_back(std::move(line));
    if (listener_)
        listener_(Text(log_.back()));
}

void HeadlessToolkit::LogPause(Double seconds) { Write("pause " + TextOf(seconds, '.')); }

Reply HeadlessToolkit::AskUser(MessageKind kind, const Text& text, const Text& title)
{
    const Reply reply = Offered(kind, GetDriver().Answer(kind, text, title));
    Write(std::string("box ") + WordFor(kind) + " " + Quoted(title) + " " + Quoted(text) + " -> "
          + WordFor(reply));
    return reply;
}

void HeadlessToolkit::ShowKeys(const toolkit::FormModel& form, const std::vector<toolkit::KeyHelp>& keys)
{
    Write("help " + form.Design().name);
    for (const toolkit::KeyHelp& line : keys)
        Write("  " + line.key + ": " + line.purpose);
}

void HeadlessToolkit::LogReport(const toolkit::ReportModel& report, const reports::Document& pages)
{
    const ReportDesign& design = report.Current();
    std::string line = "report " + design.name + " modal caption " + Quoted(design.caption) + " width "
        + Number(design.width) + " margins";
    for (const Twips margin : {design.leftMargin, design.topMargin, design.rightMargin, design.bottomMargin})
        line += " " + Number(margin);
    line += design.orientation == ReportOrientation::Landscape ? " landscape" : " portrait";
    Write(line + " records " + std::to_string(pages.records) + " pages "
          + std::to_string(pages.pages.size()));
}

void HeadlessToolkit::UnhandledFailure(const Failure& failure)
{
    failures_.push_back(failure);
    Write("unhandled " + std::to_string(failure.Number()) + " " + Quoted(failure.Description()));
}

void HeadlessToolkit::FormShows(const toolkit::FormModel& form, ShowMode mode)
{
    Write("show " + form.Design().name + (mode == ShowMode::Modal ? " modal" : ""));
}

void HeadlessToolkit::FormHides(const toolkit::FormModel& form) { Write("hide " + form.Design().name); }

void HeadlessToolkit::FormUnloads(const toolkit::FormModel& form) { Write("unload " + form.Design().name); }

void HeadlessToolkit::FormRepaints(const toolkit::FormModel& form) { Write("repaint " + form.Design().name); }

void HeadlessToolkit::CodeFocuses(const toolkit::WidgetCore& widget) { Write("focus " + widget.FullName()); }

void HeadlessToolkit::FormPopsUp(const toolkit::FormModel&, const toolkit::MenuModel& parent, Twips x,
                                 Twips y)
{
    Write("popup " + parent.Design().name + " " + Number(x) + " " + Number(y));
}

void HeadlessToolkit::KeysAreSent(const Text& keys) { Write("keys " + Quoted(keys)); }

} // namespace kova::headless
