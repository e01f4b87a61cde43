#include "toolkits/headless/log_lines.hpp"

#include "agenda/contracts/text.hpp"
#include "reports/pages.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/menu.hpp"
#include "toolkits/common/report.hpp"
#include "toolkits/common/shortcuts.hpp"
#include "toolkits/headless/quoted.hpp"

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

namespace lines {

std::string Shows(const toolkit::FormModel& form, ShowMode mode)
{
    return "show " + form.Design().name + (mode == ShowMode::Modal ? " modal" : "");
}

std::string Hides(const toolkit::FormModel& form) { return "hide " + form.Design().name; }

std::string Unloads(const toolkit::FormModel& form) { return "unload " + form.Design().name; }

std::string Repaints(const toolkit::FormModel& form) { return "repaint " + form.Design().name; }

std::string Focuses(const toolkit::WidgetCore& widget) { return "focus " + widget.FullName(); }

std::string PopsUp(const toolkit::MenuModel& parent, Twips x, Twips y)
{
    return "popup " + parent.Design().name + " " + Number(x) + " " + Number(y);
}

std::string Keys(const Text& keys) { return "keys " + Quoted(keys); }

std::string Pause(Double seconds) { return "pause " + TextOf(seconds, '.'); }

std::string Box(MessageKind kind, const Text& text, const Text& title, Reply reply)
{
    return std::string("box ") + WordFor(kind) + " " + Quoted(title) + " " + Quoted(text) + " -> "
        + WordFor(reply);
}

std::string Unhandled(const Failure& failure)
{
    return "unhandled " + std::to_string(failure.Number()) + " " + Quoted(failure.Description());
}

std::string Report(const toolkit::ReportModel& report, const reports::Document& pages)
{
    const ReportDesign& design = report.Current();
    std::string line = "report " + design.name + " modal caption " + Quoted(design.caption) + " width "
        + Number(design.width) + " margins";
    for (const Twips margin : {design.leftMargin, design.topMargin, design.rightMargin, design.bottomMargin})
        line += " " + Number(margin);
    line += design.orientation == ReportOrientation::Landscape ? " landscape" : " portrait";
    return line + " records " + std::to_string(pages.records) + " pages "
        + std::to_string(pages.pages.size());
}

std::vector<std::string> Help(const toolkit::FormModel& form, const std::vector<toolkit::KeyHelp>& keys)
{
    std::vector<std::string> lines{"help " + form.Design().name};
    for (const toolkit::KeyHelp& line : keys)
        lines.push_back("  " + line.key + ": " + line.purpose);
    return lines;
}

} // namespace lines

} // namespace kova::headless
