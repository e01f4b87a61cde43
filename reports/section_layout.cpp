#include "reports/section_layout.hpp"

#include "reports/growth.hpp"
#include "reports/keep_apart.hpp"
#include "reports/line_break.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kova::reports {

namespace {

TextFont FontOf(const ReportControlDesign& control) { return {control.fontSize, control.bold}; }

bool IsText(const ReportControlDesign& control) { return control.kind != ReportControlKind::Line; }

/// How many lines a control may have.
std::size_t MostLines(const ReportControlDesign& control, const TextMetrics& metrics)
{
    if (control.canGrow)
        return std::numeric_limits<std::size_t>::max();
    const Twips fitting = std::floor(control.height / metrics.LineHeight(FontOf(control)));
    return static_cast<std::size_t>(std::max(fitting, Twips{1}));
}

using Lines = std::vector<BrokenLine>;

Lines LinesOf(const ReportControlDesign& control, const Text& text, const TextMetrics& metrics)
{
    if (!IsText(control))
        return {};
    return BreakLines(text, FontOf(control), control.width, MostLines(control, metrics), metrics);
}

Twips HeightOf(const Lines& lines, const ReportControlDesign& control, const TextMetrics& metrics)
{
    if (!control.canGrow || lines.empty())
        return control.height;
    return std::max(control.height, metrics.LineHeight(FontOf(control)) * static_cast<Twips>(lines.size()));
}

Item PlaceText(const ReportControlDesign& control, const Box& box, const Text& text, Lines lines,
               const TextMetrics& metrics)
{
    Item item{.box = box,
              .color = control.foreColor,
              .text = text,
              .font = FontOf(control),
              .alignment = control.alignment,
              .inkHeight = metrics.InkHeight(FontOf(control))};
    item.lines.reserve(lines.size());
    Twips top = box.top;
    for (BrokenLine& line : lines) {
        const Twips left = AlignedLeft(box, control.alignment, line.width);
        item.lines.push_back({std::move(line.text), left, top, line.width});
        top += metrics.LineHeight(item.font);
    }
    return item;
}

void Place(std::vector<Item>& items, const ReportControlDesign& control, const Box& box, const Text& text,
           Lines lines, const TextMetrics& metrics)
{
    if (!IsText(control)) {
        items.push_back({.kind = ItemKind::Rule, .box = box, .color = control.foreColor});
        return;
    }
    if (control.backColor != -1)
        items.push_back({.kind = ItemKind::Band, .box = box, .color = control.backColor});
    items.push_back(PlaceText(control, box, text, std::move(lines), metrics));
}

} // namespace

SectionLayout LayOutSection(const ReportSectionDesign& design, const std::vector<Text>& texts, Twips width,
                            const TextMetrics& metrics)
{
    const std::size_t count = design.controls.size();
    std::vector<Lines> lines(count);
    std::vector<Span> spans(count);
    for (std::size_t at = 0; at < count; ++at) {
        const ReportControlDesign& control = design.controls[at];
        lines[at] = LinesOf(control, texts[at], metrics);
        spans[at] = {control.top, control.height, HeightOf(lines[at], control, metrics)};
    }
    const Grown grown = PushDown(spans, design.height);
    SectionLayout layout{{}, grown.sectionHeight};
    layout.items.reserve(count);
    for (std::size_t at = 0; at < count; ++at) {
        const ReportControlDesign& control = design.controls[at];
        const Box box{control.left, grown.tops[at], control.width, spans[at].needed};
        Place(layout.items, control, box, texts[at], std::move(lines[at]), metrics);
    }
    KeepApart(layout.items, width, metrics);
    return layout;
}

} // namespace kova::reports
