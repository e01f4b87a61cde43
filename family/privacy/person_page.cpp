#include "agenda/contracts/utf8.hpp"
#include "family/privacy/person_report.hpp"

#include <algorithm>

namespace kova::family::privacy {

namespace {

constexpr const char* Style =
    "body{font-family:Arial,Helvetica,sans-serif;font-size:11pt;line-height:1.35;color:#111;background:#fff;"
    "max-width:48rem;margin:2rem auto;padding:0 1rem}"
    "h1{font-size:17pt;margin:0 0 .5rem}h2{font-size:13pt;margin:1.6rem 0 .4rem;"
    "border-bottom:1px solid #888;page-break-after:avoid;break-after:avoid}"
    "table{width:100%;border-collapse:collapse;margin:0 0 .8rem;page-break-inside:avoid;break-inside:avoid}"
    "th,td{text-align:left;vertical-align:top;padding:.15rem .4rem;border-bottom:1px solid #ddd}"
    "th{width:32%;font-weight:normal;color:#444}td{white-space:pre-line;overflow-wrap:anywhere}"
    "td table{margin:0}p{margin:.3rem 0 .6rem}"
    "@page{margin:15mm}@media print{body{max-width:none;margin:0;padding:0;font-size:10pt}}";

/// Without characters that a page may not hold; the text is well-formed.
std::string Escaped(const std::string& text)
{
    std::string escaped;
    for (const char letter : utf8::WellFormed(text)) {
        switch (letter) {
        case '&': escaped += "&amp;"; break;
        case '<': escaped += "&lt;"; break;
        case '>': escaped += "&gt;"; break;
        case '"': escaped += "&quot;"; break;
        case '\'': escaped += "&#39;"; break;
        default:
            if (static_cast<unsigned char>(letter) >= ' ' || letter == '\n' || letter == '\t')
                escaped += letter;
        }
    }
    return escaped;
}

bool IsEmpty(const ReportEntry& entry) { return entry.text.empty() && entry.parts.empty(); }

/// Values that are not there take no line.
std::string TableOf(const ReportRecord& record)
{
    std::string table = "<table>\n";
    for (const ReportEntry& entry : record) {
        if (IsEmpty(entry))
            continue;
        table += "<tr><th scope=\"row\">" + Escaped(entry.label) + "</th><td>";
        table += entry.hasParts ? TableOf(entry.parts) : Escaped(entry.text);
        table += "</td></tr>\n";
    }
    return table + "</table>\n";
}

std::string SectionOf(const ReportGroup& group)
{
    std::string section = "<section>\n<h2>" + Escaped(group.title) + "</h2>\n";
    if (group.records.empty())
        return section + "<p>Nada consta.</p>\n</section>\n";
    if (!group.note.empty())
        section += "<p>" + Escaped(group.note) + "</p>\n";
    for (const ReportRecord& record : group.records)
        section += TableOf(record);
    return section + "</section>\n";
}

} // namespace

std::string PageOf(const PersonReport& report)
{
    const std::string title = Escaped(report.title);
    std::string page = "<!DOCTYPE html>\n<html lang=\"pt-BR\">\n<head>\n<meta charset=\"utf-8\">\n"
                       "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>"
        + title + "</title>\n<style>" + Style + "</style>\n</head>\n<body>\n<h1>" + title + "</h1>\n"
        + TableOf(report.heading);
    for (const ReportGroup& group : report.groups)
        page += SectionOf(group);
    return page + "</body>\n</html>\n";
}

} // namespace kova::family::privacy
