#include "reports/codes.hpp"

#include <gtest/gtest.h>

namespace kova::reports {
namespace {

TEST(FillIn, ReplacesTheCodesOfACaption)
{
    const Occasion occasion{{{2026, 11, 20}, {9, 5, 7}}, "Agenda", 3, 12};
    const std::pair<const char*, const char*> cases[]{
        {"", ""},
        {"Página:", "Página:"},
        {"%d", "20/11/2026"},
        {"%D", "sexta-feira, 20 de novembro de 2026"},
        {"%t %T", "09:05 09:05:07"},
        {"%p de %P", "3 de 12"},
        {"%i", "Agenda"},
        {"%", "%"},
        {"100% pet", "100% pet"},
        {"%x%%p", "%x%3"},
        {"%p%", "3%"},
    };
    for (const auto& [caption, filled] : cases)
        EXPECT_EQ(FillIn(caption, occasion), filled) << caption;
}

} // namespace
} // namespace kova::reports
