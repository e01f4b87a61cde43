#include "tools/scenario/page_text.hpp"

#include <gtest/gtest.h>

namespace kova::scenario {
namespace {

TEST(ShowPages, PrintsOneLineForEachItemInDrawingOrder)
{
    using namespace reports;
    Document document;
    document.pages.resize(2);
    document.pages[0].items = {
        {.kind = ItemKind::Band, .box = {1077, 2825, 2381, 240}, .color = Rgb(128, 128, 128)},
        {.box = {1077, 2825, 2381, 240}, .text = "Diz \"oi\"\r\n", .font = {9.75F, true}},
        {.kind = ItemKind::Rule, .box = {1020, 3398, 14769, 0}, .color = Rgb(224, 224, 192)}};
    document.pages[1].items = {
        {.box = {10, 20.5F, 30, 40},
         .text = "1",
         .font = {8.25F, false},
         .alignment = ReportAlignment::Right},
        {.box = {0, 0, 0, 0}, .text = "", .font = {24, true}, .alignment = ReportAlignment::Center}};
    EXPECT_EQ(ShowPages(document),
              (std::vector<std::string>{"band 1 1077 2825 2381 240 128,128,128",
                                        "page 1 1077 2825 2381 240 \"Diz \\\"oi\\\"\\r\\n\" 9.75 bold left",
                                        "rule 1 1020 3398 14769 0 224,224,192",
                                        "page 2 10 20.5 30 40 \"1\" 8.25 right",
                                        "page 2 0 0 0 0 \"\" 24 bold center"}));
}

} // namespace
} // namespace kova::scenario
