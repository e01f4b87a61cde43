// What is told about a person, as a page and as JSON.

#include "family/privacy/person_report.hpp"

#include <gtest/gtest.h>

namespace kova::family::privacy {

namespace {

PersonReport ReportWith(const char* label, const char* text) { return {"Dados", {{label, text}}, {}}; }

} // namespace

TEST(PersonReport, NamesItsValuesByTheirLabelsWithoutAccentsAndMarks)
{
    for (const auto& [label, key] : {std::pair("Razão 9 (a)", "razao_9_a"), std::pair("-- Zé  0", "ze_0")})
        EXPECT_EQ(JsonOf(ReportWith(label, "x")), std::string("{\n  \"") + key + "\": \"x\"\n}\n");
}

TEST(PersonReport, LeavesOutOfThePageWhatNoPageMayHold)
{
    EXPECT_NE(PageOf(ReportWith("Nota", "a\x01\tb\r\n c\x1F")).find("<td>a\tb\n c</td>"), std::string::npos);
}

TEST(PersonReport, GivesNoLineToAValueThatIsNotThere)
{
    const PersonReport report{
        "Dados", {{"Vazio", ""}, {"Cheio", "x"}, {"Partes", "", {{"Parte", "y"}}, true}}, {}};
    const std::string page = PageOf(report);
    EXPECT_EQ(page.find("Vazio"), std::string::npos);
    for (const char* shown : {"Cheio", "<td>x</td>", "Partes", "Parte</th><td>y</td>"})
        EXPECT_NE(page.find(shown), std::string::npos) << shown;
}

} // namespace kova::family::privacy
