#include "family/csv/preview.hpp"

#include <gtest/gtest.h>

namespace kova::family::csv::test {

namespace {

using Rows = std::vector<std::vector<std::string>>;

} // namespace

TEST(Previews, ShowTheFirstRecordsAndCountAll)
{
    const char* text = "Nome;Cor\n a ; b\n;\nc\n\nd;e;f\n";
    const Preview all = PreviewOf(text, ';', 3);
    EXPECT_EQ(all.titles, (std::vector<std::string>{"Nome", "Cor"}));
    EXPECT_EQ(all.rows, (Rows{{"a", "b"}, {"c", ""}, {"d", "e"}}));
    EXPECT_EQ(all.records, 3);
    const Preview two = PreviewOf(text, ';', 2);
    EXPECT_EQ(two.rows, (Rows{{"a", "b"}, {"c", ""}}));
    EXPECT_EQ(two.records, 3);
    EXPECT_EQ(PreviewOf(text, ';', 0).rows, Rows{});
}

TEST(Previews, OfNothingHaveNoTitles)
{
    EXPECT_TRUE(PreviewOf("", ';', 2).titles.empty());
    EXPECT_EQ(PreviewOf("Nome", ';', 2).titles, std::vector<std::string>{"Nome"});
    EXPECT_EQ(PreviewOf("Nome", ';', 2).records, 0);
}

} // namespace kova::family::csv::test
