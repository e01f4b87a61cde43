#include "tools/scenario/page_text.hpp"

#include "agenda/contracts/text.hpp"
#include "toolkits/headless/quoted.hpp"

namespace kova::scenario {

namespace {

std::string Number(float number) { return TextOf(static_cast<Double>(number), '.'); }

std::string Place(const reports::Box& box)
{
    return Number(box.left) + " " + Number(box.top) + " " + Number(box.width) + " " + Number(box.height);
}

std::string ColorText(Colour color)
{
    constexpr int part = 256;
    return std::to_string(color % part) + "," + std::to_string(color / part % part) + ","
        + std::to_string(color / part / part % part);
}

const char* WordFor(ReportAlignment alignment)
{
    switch (alignment) {
    case ReportAlignment::Left: return "left";
    case ReportAlignment::Right: return "right";
    case ReportAlignment::Center: return "center";
    }
    return "";
}

std::string Show(const reports::Item& item, const std::string& page)
{
    const std::string place = " " + page + " " + Place(item.box) + " ";
    switch (item.kind) {
    case reports::ItemKind::Rule: return "rule" + place + ColorText(item.color);
    case reports::ItemKind::Band: return "band" + place + ColorText(item.color);
    case reports::ItemKind::Text: break;
    }
    return "page" + place + headless::Quoted(item.text) + " " + Number(item.font.size)
        + (item.font.bold ? " bold " : " ") + WordFor(item.alignment);
}

} // namespace

std::vector<std::string> ShowPages(const reports::Document& document)
{
    std::vector<std::string> lines;
    int number = 0;
    for (const reports::Page& page : document.pages) {
        const std::string name = std::to_string(++number);
        for (const reports::Item& item : page.items)
            lines.push_back(Show(item, name));
    }
    return lines;
}

} // namespace kova::scenario
