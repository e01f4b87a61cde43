#include "tests/monkey/failure_ear.hpp"
#include "tests/monkey/shorten.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace kova::monkey {

namespace {

Act Key(int number) { return {.verb = Verb::Key, .text = std::to_string(number)}; }

std::vector<Act> Keys(int count)
{
    std::vector<Act> acts;
    for (int i = 0; i < count; ++i)
        acts.push_back(Key(i));
    return acts;
}

bool Has(const std::vector<Act>& acts, int number)
{
    return std::ranges::find(acts, Key(number)) != acts.end();
}

} // namespace

TEST(Shorten, LeavesTheActsThatAreNeededInTheirOrder)
{
    const auto fails = [](const std::vector<Act>& acts) {
        return Has(acts, 3) && Has(acts, 70) && Has(acts, 71);
    };
    EXPECT_EQ(Shorten(Keys(100), fails), (std::vector<Act>{Key(3), Key(70), Key(71)}));
}

TEST(Shorten, LeavesNothingWhereNoActIsNeeded)
{
    EXPECT_TRUE(Shorten(Keys(20), [](const std::vector<Act>&) { return true; }).empty());
}

TEST(Shorten, LeavesAllWhereEachIsNeeded)
{
    EXPECT_EQ(Shorten(Keys(9), [](const std::vector<Act>& acts) { return acts.size() == 9; }), Keys(9));
}

TEST(Shorten, TriesNothingMoreOnceItIsEnough)
{
    int tries = 0;
    const auto fails = [&](const std::vector<Act>& acts) { return ++tries > 0 && Has(acts, 50); };
    const auto left = Shorten(Keys(100), fails, [&] { return tries >= 7; });
    EXPECT_EQ(tries, 7);
    EXPECT_TRUE(Has(left, 50));
}

TEST(Act, ReadsTheLineThatItWrites)
{
    const std::vector<Act> acts{
        {.verb = Verb::Screen, .numbers = {1366, 768, 125}, .text = "dark"},
        {.verb = Verb::Users},
        {.verb = Verb::Press, .hasty = true, .target = "frmLista.kvcmdAlterar", .numbers = {500, 20}},
        {.verb = Verb::Drag, .target = "frmLista.msfgGrade", .numbers = {1, 2, 3, 4}},
        {.verb = Verb::Wheel, .target = "@popup", .numbers = {1, 2, -120}},
        {.verb = Verb::Type, .text = "  ção \"x\" "},
        {.verb = Verb::OtherDesk, .numbers = {250}, .text = "status 2"},
        {.verb = Verb::GoHome},
    };
    for (const Act& act : acts)
        EXPECT_EQ(FromLine(ToLine(act)), act) << ToLine(act);
}

TEST(Act, RefusesALineThatTellsNoAct)
{
    EXPECT_THROW(FromLine("sing"), BadAct);
    EXPECT_THROW(FromLine("press frmLista.kvcmdAlterar 500"), BadAct);
}

TEST(FailureEar, TellsNumberAndPlaceOfAFailureOnceItIsReportedWhole)
{
    const std::string said =
        "Kovaris\nNúmero: 13\nDescrição: Tipos incompatíveis\nLocal: frmLista, GerarLista, Ponto: 1";
    EXPECT_EQ(FailureReportedIn(said), "");
    EXPECT_EQ(FailureReportedIn(said + "\n"), "error 13 at frmLista, GerarLista, Ponto: 1");
    EXPECT_FALSE(IsToldByDesign("error 13 at frmLista, GerarLista, Ponto: 1"));
    EXPECT_TRUE(
        IsToldByDesign("error 13 at KOVA_A_Agenda, frmLista, kvcmdIrParaDiaAnterior_Click, Ponto: 1"));
    EXPECT_EQ(FailureReportedIn("QStandardPaths: XDG_RUNTIME_DIR not set\n"), "");
}

} // namespace kova::monkey
