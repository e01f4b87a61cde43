#include "agenda/printing/layout_parts.hpp"

#include "agenda/shared/palette.hpp"

#include <utility>

namespace kova::agenda::layout {

namespace {

constexpr Twips Margin = 850;

} // namespace

ReportControlDesign Label(std::string name, std::string caption, Twips left, Twips top, Twips width,
                          Twips height, float fontSize)
{
    return {.kind = ReportControlKind::Label,
            .name = std::move(name),
            .content = std::move(caption),
            .left = left,
            .top = top,
            .width = width,
            .height = height,
            .fontSize = fontSize};
}

ReportControlDesign TextBox(std::string name, std::string field, Twips left, Twips top, Twips width,
                            Twips height, float fontSize)
{
    ReportControlDesign box = Label(std::move(name), std::move(field), left, top, width, height, fontSize);
    box.kind = ReportControlKind::TextBox;
    return box;
}

ReportControlDesign Line(std::string name, Twips left, Twips top, Twips width, Twips height)
{
    return {.kind = ReportControlKind::Line,
            .name = std::move(name),
            .left = left,
            .top = top,
            .width = width,
            .height = height};
}

ReportControlDesign Bold(ReportControlDesign control)
{
    control.bold = true;
    return control;
}

ReportControlDesign Right(ReportControlDesign control)
{
    control.alignment = ReportAlignment::Right;
    return control;
}

ReportControlDesign Centered(ReportControlDesign control)
{
    control.alignment = ReportAlignment::Center;
    return control;
}

ReportControlDesign CanGrow(ReportControlDesign control)
{
    control.canGrow = true;
    return control;
}

ReportControlDesign OnGrey(ReportControlDesign control)
{
    control.backColor = cores::CinzaMedio;
    return control;
}

ReportControlDesign Light(ReportControlDesign control)
{
    control.foreColor = cores::CinzaDePapel;
    return control;
}

ReportDesign Report(std::string name, Twips width, std::vector<ReportSectionDesign> sections)
{
    return {.name = std::move(name),
            .width = width,
            .leftMargin = Margin,
            .topMargin = Margin,
            .rightMargin = Margin,
            .bottomMargin = Margin,
            .sections = std::move(sections)};
}

} // namespace kova::agenda::layout
