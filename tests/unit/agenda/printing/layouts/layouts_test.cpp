#include "agenda/contracts/text.hpp"
#include "agenda/printing/layouts.hpp"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>

namespace kova::agenda {
namespace {

using Lines = std::vector<std::string>;

std::string Number(float number) { return TextOf(static_cast<Double>(number), '.'); }

std::string ColorText(Colour color)
{
    return std::to_string(color & 0xFF) + "," + std::to_string(color >> 8 & 0xFF) + ","
        + std::to_string(color >> 16 & 0xFF);
}

std::string KindText(ReportControlKind kind)
{
    switch (kind) {
    case ReportControlKind::Label: return "label";
    case ReportControlKind::TextBox: return "text box";
    case ReportControlKind::Line: return "line";
    }
    return "?";
}

std::string FontText(const ReportControlDesign& control)
{
    if (control.kind == ReportControlKind::Line)
        return control.foreColor == colours::Black ? "" : "colour grey " + ColorText(control.foreColor);
    std::string text = Number(control.fontSize) + (control.bold ? " bold" : "");
    if (control.alignment != ReportAlignment::Left)
        text += control.alignment == ReportAlignment::Right ? ", right aligned" : ", centred";
    if (control.canGrow)
        text += ", can grow";
    if (control.backColor != -1)
        text += ", background grey " + ColorText(control.backColor);
    if (control.foreColor != colours::Black)
        text += ", colour " + ColorText(control.foreColor);
    return text;
}

std::string LineOf(const ReportControlDesign& control)
{
    const bool isLabel = control.kind == ReportControlKind::Label;
    const std::string content = isLabel ? "\"" + control.content + "\"" : control.content;
    return control.name + "|" + KindText(control.kind) + "|" + content + "|" + Number(control.left) + "|"
        + Number(control.top) + "|" + Number(control.width) + "|"
        + (control.height == 0 ? "" : Number(control.height)) + "|" + FontText(control);
}

Lines LinesOf(const ReportDesign& design)
{
    Lines lines;
    for (const ReportSectionDesign& section : design.sections) {
        lines.push_back("section " + section.name + " " + Number(section.height));
        for (const ReportControlDesign& control : section.controls)
            lines.push_back(LineOf(control));
    }
    return lines;
}

std::map<std::string, Lines> Tables()
{
    std::map<std::string, Lines> tables;
    std::ifstream file(LAYOUT_TABLES);
    std::string report;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("report "))
            report = line.substr(7);
        else if (!line.starts_with('#'))
            tables[report].push_back(line);
    }
    return tables;
}

const std::vector<const ReportDesign*>& Layouts()
{
    static const std::vector<const ReportDesign*> layouts{
        &DesenhoDedrListaDeAgendamentos(), &DesenhoDedrListaDeAgendamentosParaTransporte(),
        &DesenhoDedrFichaDoAgendamentoParaTransporte(), &DesenhoDedrFichaDoAgendamentoParaInspecaoDoAnimal()};
    return layouts;
}

TEST(Layouts, HoldEveryControlOfTheTables)
{
    const auto tables = Tables();
    ASSERT_EQ(tables.size(), Layouts().size());
    for (const ReportDesign* design : Layouts()) {
        const Lines& expected = tables.at(design->name);
        const Lines lines = LinesOf(*design);
        ASSERT_EQ(lines.size(), expected.size()) << design->name;
        for (std::size_t at = 0; at < lines.size(); ++at)
            EXPECT_EQ(lines[at], expected[at]) << design->name;
    }
}

TEST(Layouts, HaveTheirWidthsAndMargins)
{
    const std::map<std::string, Twips> widths{{"drListaDeAgendamentos", 15150},
                                              {"drListaDeAgendamentosParaTransporte", 15110},
                                              {"drFichaDoAgendamentoParaTransporte", 10125},
                                              {"drFichaDoAgendamentoParaInspecaoDoAnimal", 10320}};
    for (const ReportDesign* design : Layouts()) {
        EXPECT_EQ(design->width, widths.at(design->name));
        for (const Twips margin :
             {design->leftMargin, design->topMargin, design->rightMargin, design->bottomMargin})
            EXPECT_EQ(margin, 850) << design->name;
        EXPECT_EQ(design->orientation, ReportOrientation::Default);
    }
}

TEST(Layouts, RepeatHeadAndFootAndPrintDetailsInBetween)
{
    for (const ReportDesign* design : Layouts()) {
        ASSERT_EQ(design->sections.size(), 3u) << design->name;
        EXPECT_EQ(design->sections[0].kind, ReportSectionKind::PageHead);
        EXPECT_EQ(design->sections[1].kind, ReportSectionKind::Details);
        EXPECT_EQ(design->sections[2].kind, ReportSectionKind::PageFoot);
    }
}

TEST(Layouts, NameEachControlOnceWithAPrefixThatFitsItsKind)
{
    for (const ReportDesign* design : Layouts()) {
        std::set<std::string> names;
        for (const ReportSectionDesign& section : design->sections) {
            for (const ReportControlDesign& control : section.controls) {
                EXPECT_TRUE(names.insert(control.name).second) << control.name;
                const std::string prefix = UpperCase(Left(control.name, 3));
                const std::string fitting = control.kind == ReportControlKind::TextBox ? "TXT"
                    : control.kind == ReportControlKind::Line                          ? "LIN"
                                                                                       : "LBL";
                EXPECT_TRUE(prefix == fitting || (fitting == "LBL" && prefix == "LAB")) << control.name;
            }
        }
    }
}

} // namespace
} // namespace kova::agenda
