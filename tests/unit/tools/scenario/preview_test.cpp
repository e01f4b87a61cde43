#include "toolkits/headless/toolkit.hpp"
#include "tools/scenario/runner.hpp"

#include <gtest/gtest.h>

#include <utility>

namespace kova::scenario {
namespace {

reports::Document OnePage()
{
    reports::Document document;
    document.pages.resize(1);
    document.pages[0].items = {{.box = {10, 20, 30, 40}, .text = "oi", .font = {9.75F, false}}};
    return document;
}

/// Opens a preview in the middle of the module, at the first line of the transcript that its opening writes,
/// and answers the lines that the preview adds.
std::vector<std::string> InsidePreview(const std::string& statements)
{
    headless::HeadlessToolkit toolkit;
    const toolkit::ReportModel report(toolkit, {.name = "drTeste"});
    const reports::Document pages = OnePage();
    std::vector<std::string> lines;
    Runner* runner = nullptr;
    bool isOpen = false;
    bool wasOpen = false;
    Runner running(ParseScript("open\n" + statements), {}, MakeHeadlessScreen(),
                   [&](const std::string& line) {
                       if (isOpen)
                           lines.push_back(line);
                       if (std::exchange(wasOpen, true))
                           return;
                       isOpen = true;
                       runner->PreviewOpens(report, pages);
                       while (runner->StepInPreview()) { }
                       isOpen = false;
                   });
    runner = &running;
    running.Run();
    return lines;
}

using Lines = std::vector<std::string>;

TEST(PreviewOfAReport, TakesStatementsUntilItIsClosed)
{
    EXPECT_EQ(InsidePreview("pages\nclose\nnote \"depois\""), (Lines{"page 1 10 20 30 40 \"oi\" 9.75 left"}));
    EXPECT_EQ(InsidePreview("close drTeste\npages"), Lines{});
}

TEST(PreviewOfAReport, KeepsTheUserFromClosingAnythingElse)
{
    EXPECT_EQ(InsidePreview("close frmLista\nclose"),
              (Lines{"refused: frmLista is behind a report preview"}));
}

TEST(PreviewOfAReport, EndsWithTheScript)
{
    EXPECT_EQ(InsidePreview("note \"dentro\""), (Lines{"dentro", "end inside drTeste"}));
}

} // namespace
} // namespace kova::scenario
