#include "agenda/contracts/support/memory_record_set.hpp"
#include "reports/layout.hpp"
#include "tests/unit/reports/fixed_metrics.hpp"

#include <gtest/gtest.h>

namespace kova::reports::test {
namespace {

const FixedMetrics Metrics;
const DateTime Moment{{2026, 11, 20}, {10, 15, 0}};

/// Paper of 10000 by 8000 with margins of 1000: head 1000, foot 500, and so 4500 for the records.
class Paging : public testing::Test {
protected:
    static ReportControlDesign Text(ReportControlKind kind, const char* content, Twips left, Twips top)
    {
        return {.kind = kind,
                .name = content,
                .content = content,
                .left = left,
                .top = top,
                .width = 500,
                .height = 225,
                .fontSize = 10};
    }

    static ReportDesign Design()
    {
        using Kind = ReportControlKind;
        ReportControlDesign field = Text(Kind::TextBox, "Nome", 0, 100);
        field.canGrow = true;
        return {.name = "drTeste",
                .caption = "Título",
                .leftMargin = 1000,
                .topMargin = 1000,
                .rightMargin = 1000,
                .bottomMargin = 1000,
                .sections = {{ReportSectionKind::PageHead,
                              "Cabecalho",
                              1000,
                              {Text(Kind::Label, "%p/%P", 0, 0), Text(Kind::Label, "%d", 6500, 0)}},
                             {ReportSectionKind::Details, "Detalhes", 1000, {field}},
                             {ReportSectionKind::PageFoot, "Rodape", 500, {Text(Kind::Label, "pé", 0, 0)}}}};
    }

    static RecordSetRef Records(const std::vector<kova::Text>& names)
    {
        std::vector<std::vector<Value>> rows;
        for (const kova::Text& name : names)
            rows.push_back({name});
        return std::make_shared<MemoryRecordSet>(std::vector<kova::Text>{"Nome"}, rows);
    }

    static Document LayOut(const ReportDesign& design, const RecordSetRef& records)
    {
        return reports::LayOut({design, records.get(), Moment, {10000, 8000}}, Metrics);
    }

    static std::vector<kova::Text> TextsOf(const Page& page)
    {
        std::vector<kova::Text> texts;
        for (const Item& item : page.items)
            texts.push_back(item.text);
        return texts;
    }

    using Texts = std::vector<kova::Text>;
};

TEST_F(Paging, PutsHeadAndFootOnEachPageWithItsNumber)
{
    const Document document = LayOut(Design(), Records({"a", "b", "c", "d", "e"}));
    ASSERT_EQ(document.pages.size(), 2u);
    EXPECT_EQ(TextsOf(document.pages[0]), (Texts{"1/2", "20/11/2026", "a", "b", "c", "d", "pé"}));
    EXPECT_EQ(TextsOf(document.pages[1]), (Texts{"2/2", "20/11/2026", "e", "pé"}));
    EXPECT_EQ(document.records, 5);
    EXPECT_EQ(document.title, "Título");
}

TEST_F(Paging, PlacesSectionsFromTheMargins)
{
    const Document document = LayOut(Design(), Records({"a", "b"}));
    const std::vector<Item>& items = document.pages[0].items;
    EXPECT_EQ(items[0].box, (Box{1000, 1000, 500, 225}));
    EXPECT_EQ(items[2].box, (Box{1000, 1000 + 1000 + 100, 500, 225}));
    EXPECT_EQ(items[3].box, (Box{1000, 1000 + 2000 + 100, 500, 225}));
    EXPECT_EQ(items[4].box, (Box{1000, 8000 - 1000 - 500, 500, 225})) << "the foot stands at the foot";
    EXPECT_EQ(items[2].lines[0].left, 1000);
    EXPECT_EQ(items[2].lines[0].top, 2100);
}

TEST_F(Paging, PrintsHeadAndFootWithoutRecords)
{
    for (const RecordSetRef& records : {RecordSetRef(), Records({})}) {
        const Document document = LayOut(Design(), records);
        ASSERT_EQ(document.pages.size(), 1u);
        EXPECT_EQ(TextsOf(document.pages[0]), (Texts{"1/1", "20/11/2026", "pé"}));
        EXPECT_EQ(document.records, 0);
    }
}

TEST_F(Paging, MovesARecordThatDoesNotFitToTheNextPage)
{
    // 8 lines need 1600: the record is 2375 high.
    const kova::Text eight = "aaaa bbbb cccc dddd eeee ffff gggg hhhh";
    const Document document = LayOut(Design(), Records({"a", "b", "c", eight, "d"}));
    ASSERT_EQ(document.pages.size(), 2u);
    EXPECT_EQ(TextsOf(document.pages[0]), (Texts{"1/2", "20/11/2026", "a", "b", "c", "pé"}));
    EXPECT_EQ(TextsOf(document.pages[1]), (Texts{"2/2", "20/11/2026", eight, "d", "pé"}));
    EXPECT_EQ(document.pages[1].items[3].box.top, 1000 + 1000 + 2375 + 100);
}

TEST_F(Paging, CutsOnlyARecordThatNoPageHolds)
{
    kova::Text long40;
    for (int word = 10; word < 50; ++word)
        long40 += "pal" + std::to_string(word) + (word == 49 ? "" : " ");
    const Document document = LayOut(Design(), Records({"a", long40, "b"}));
    ASSERT_EQ(document.pages.size(), 4u);
    EXPECT_EQ(TextsOf(document.pages[0]), (Texts{"1/4", "20/11/2026", "a", "pé"}));
    std::size_t lines = 0;
    for (const Page& page : document.pages) {
        for (const Item& item : page.items) {
            EXPECT_LE(item.box.Bottom(), 7000);
            lines += item.text.starts_with("pal") ? item.lines.size() : 0;
        }
    }
    EXPECT_EQ(lines, 40u);
    EXPECT_EQ(document.pages[3].items[2].text, "b");
}

TEST_F(Paging, TurnsThePaperForLandscape)
{
    ReportDesign design = Design();
    design.orientation = ReportOrientation::Landscape;
    design.sections[0].controls[1].left = 5500;
    const Document document = LayOut(design, nullptr);
    EXPECT_EQ(document.paperWidth, 8000);
    EXPECT_EQ(document.paperHeight, 10000);
    EXPECT_EQ(document.pages[0].items.back().box.top, 10000 - 1000 - 500);
}

TEST_F(Paging, ScalesAllEvenlyWhereThePaperIsNarrowerThanTheRightmostControl)
{
    ReportDesign design = Design();
    design.orientation = ReportOrientation::Landscape;
    design.sections[0].controls[1].left = 11000;
    design.sections[0].controls[1].width = 1000;
    const Document document = LayOut(design, Records({"a", "b", "c", "d", "e"}));
    EXPECT_EQ(document.pages.size(), 1u) << "half as large, twice as much";
    const std::vector<Item>& items = document.pages[0].items;
    EXPECT_EQ(items[1].box, (Box{1000 + 5500, 1000, 500, 112.5F}));
    EXPECT_EQ(items[1].box.Right(), 7000);
    EXPECT_EQ(items[1].font.size, 5);
    EXPECT_EQ(items[3].box.top, 1000 + (1000 + 1000 + 100) / 2);
    EXPECT_EQ(items.back().box.top, 10000 - 1000 - 250);
    EXPECT_EQ(items[1].lines[0].width, 500);
}

TEST_F(Paging, ScalesNothingWhereTheNominalWidthAloneIsTooLarge)
{
    ReportDesign design = Design();
    design.width = 20000;
    EXPECT_EQ(LayOut(design, nullptr).pages[0].items[0].font.size, 10);
}

TEST_F(Paging, GrowsTheHeadOfEachPage)
{
    ReportDesign design = Design();
    design.sections[0].controls[0].content = "nome muito longo mesmo assim";
    design.sections[0].controls[0].canGrow = true;
    const Document document = LayOut(design, Records({"a", "b", "c", "d"}));
    ASSERT_EQ(document.pages.size(), 2u) << "1000 + 775 leave room for three records";
    EXPECT_EQ(document.pages[0].items[0].box.height, 1000);
    EXPECT_EQ(document.pages[0].items[2].box.top, 1000 + 1775 + 100);
    EXPECT_EQ(document.pages[1].items[2].box.top, 1000 + 1775 + 100);
}

TEST_F(Paging, ShowsANullAsNothingAndNumbersAsText)
{
    const auto records = std::make_shared<MemoryRecordSet>(
        std::vector<kova::Text>{"Nome"}, std::vector<std::vector<Value>>{{Null{}}, {Long{42}}, {Value()}});
    const Document document = LayOut(Design(), records);
    EXPECT_EQ(TextsOf(document.pages[0]), (Texts{"1/1", "20/11/2026", "", "42", "", "pé"}));
}

TEST_F(Paging, LeavesCodesInDataAsTheyAre)
{
    const Document document = LayOut(Design(), Records({"50%p"}));
    EXPECT_EQ(document.pages[0].items[2].text, "50%p");
}

TEST_F(Paging, FailsOnAFieldThatTheRecordsDoNotHave)
{
    ReportDesign design = Design();
    design.sections[1].controls[0].content = "Nada";
    try {
        LayOut(design, Records({"a"}));
        FAIL() << "no failure";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), 3265);
    }
    design.sections[1].controls[0].content = "";
    EXPECT_EQ(LayOut(design, Records({"a"})).pages[0].items[2].text, "");
}

TEST_F(Paging, KeepsAThousandRecordsInOrderWithTheRightNumbers)
{
    std::vector<kova::Text> names;
    for (int number = 0; number < 1000; ++number)
        names.push_back("n" + std::to_string(number));
    const Document document = LayOut(Design(), Records(names));
    ASSERT_EQ(document.pages.size(), 250u);
    Texts seen;
    for (std::size_t page = 0; page < document.pages.size(); ++page) {
        const Texts texts = TextsOf(document.pages[page]);
        EXPECT_EQ(texts.front(), std::to_string(page + 1) + "/250");
        EXPECT_EQ(texts.back(), "pé");
        seen.insert(seen.end(), texts.begin() + 2, texts.end() - 1);
    }
    EXPECT_EQ(seen, names);
}

} // namespace
} // namespace kova::reports::test
