// Where labels stand on their sheets, and where copies go.

#include "family/presentation/labels/label_sheet.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace kova::family {
namespace {

double Millimetres(Twips length) { return static_cast<double>(length) / TwipsOfMillimetre; }

struct Edges {
    const char* key;
    int labels;
    // The first label's left and top edge, the last one's right and bottom edge, as the makers print them.
    double left, top, right, bottom;
};

constexpr Edges MakersEdges[] = {
    {"A4-2x7", 14, 4.65, 15.15, 205.35, 281.85},  {"A4-2x8", 16, 4.65, 12.9, 205.35, 284.1},
    {"A4-3x7", 21, 7.25, 15.15, 202.75, 281.85},  {"A4-3x11", 33, 7.25, 8.8, 202.75, 288.2},
    {"carta-2x5", 10, 3.97, 12.7, 211.93, 266.7}, {"carta-2x10", 20, 3.97, 12.7, 211.93, 266.7},
    {"carta-3x10", 30, 4.76, 12.7, 211.14, 266.7}};

TEST(LabelSheet, HasItsLabelsWhereTheMakersCutThem)
{
    EXPECT_EQ(LabelSheets().size(), std::size(MakersEdges));
    for (const Edges& edges : MakersEdges) {
        const LabelSheet& sheet = LabelSheetOf(edges.key);
        ASSERT_STREQ(sheet.key, edges.key);
        EXPECT_EQ(sheet.Labels(), edges.labels) << edges.key;
        const reports::Box first = BoxOfLabel(sheet, 0);
        const reports::Box last = BoxOfLabel(sheet, sheet.Labels() - 1);
        EXPECT_NEAR(Millimetres(first.left), edges.left, 0.01) << edges.key;
        EXPECT_NEAR(Millimetres(first.top), edges.top, 0.01) << edges.key;
        EXPECT_NEAR(Millimetres(last.Right()), edges.right, 0.01) << edges.key;
        EXPECT_NEAR(Millimetres(last.Bottom()), edges.bottom, 0.01) << edges.key;
    }
}

TEST(LabelSheet, CountsPositionsRowByRow)
{
    const LabelSheet& sheet = LabelSheetOf("carta-3x10");
    const reports::Box first = BoxOfLabel(sheet, 0);
    const reports::Box right = BoxOfLabel(sheet, 2);
    const reports::Box below = BoxOfLabel(sheet, 3);
    EXPECT_NEAR(Millimetres(right.left - first.left), 2 * 69.85, 0.01);
    EXPECT_EQ(right.top, first.top);
    EXPECT_EQ(below.left, first.left);
    EXPECT_NEAR(Millimetres(below.top - first.top), 25.4, 0.01);
}

TEST(LabelSheet, KeepsItsLabelsApart)
{
    // A hair, for edges that touch.
    constexpr Twips hair = 0.01F;
    for (const LabelSheet& sheet : LabelSheets()) {
        for (int a = 0; a < sheet.Labels(); ++a) {
            for (int b = a + 1; b < sheet.Labels(); ++b) {
                reports::Box inner = BoxOfLabel(sheet, b);
                inner = {inner.left + hair, inner.top + hair, inner.width - 2 * hair,
                         inner.height - 2 * hair};
                EXPECT_FALSE(reports::Overlap(BoxOfLabel(sheet, a), inner)) << sheet.key << a << ' ' << b;
            }
        }
    }
}

TEST(LabelSheet, HasAKeyAndANameOfItsOwn)
{
    std::set<std::string> keys;
    std::set<Text> names;
    for (const LabelSheet& sheet : LabelSheets()) {
        keys.insert(sheet.key);
        names.insert(NameOf(sheet));
    }
    EXPECT_EQ(keys.size(), LabelSheets().size());
    EXPECT_EQ(names.size(), LabelSheets().size());
    EXPECT_EQ(NameOf(LabelSheetOf("A4-2x7")), "A4 com 14 etiquetas de 99,1 x 38,1 mm");
    EXPECT_EQ(NameOf(LabelSheetOf("carta-3x10")), "Carta com 30 etiquetas de 66,7 x 25,4 mm");
}

TEST(LabelSheet, OfAnUnknownKeyIsTheFirst)
{
    EXPECT_STREQ(LabelSheetOf("A3-9x9").key, "A4-2x7");
    EXPECT_STREQ(LabelSheetOf("").key, "A4-2x7");
}

TEST(LabelCopies, FollowTheFirstFreePlaceAndGoOnOnTheNextSheet)
{
    struct Case {
        int first, copy;
        LabelPlace place;
    };
    const Case cases[]{{0, 0, {0, 0}},  {5, 0, {0, 5}},   {5, 8, {0, 13}},
                       {5, 9, {1, 0}},  {13, 0, {0, 13}}, {13, 1, {1, 0}},
                       {0, 14, {1, 0}}, {0, 13, {0, 13}}, {13, 998, {72, 3}}};
    const LabelSheet& sheet = LabelSheetOf("A4-2x7");
    for (const Case& each : cases)
        EXPECT_EQ(PlaceOfCopy(sheet, each.first, each.copy), each.place) << each.first << ' ' << each.copy;
}

TEST(LabelCopies, NeedAsManySheetsAsTheyFill)
{
    struct Case {
        int first, copies, sheets;
    };
    const Case cases[]{{0, 1, 1}, {0, 14, 1}, {0, 15, 2}, {13, 1, 1}, {13, 2, 2}, {1, 14, 2}, {0, 0, 1}};
    for (const Case& each : cases)
        EXPECT_EQ(SheetsNeeded(LabelSheetOf("A4-2x7"), each.first, each.copies), each.sheets)
            << each.first << ' ' << each.copies;
}

} // namespace
} // namespace kova::family
