#include "host/options.hpp"

#include "host/arguments/call.hpp"

#include <gtest/gtest.h>

namespace kova::host {

namespace {

std::string RefusalOf(const std::vector<std::string>& arguments)
{
    try {
        ParseOptions(arguments);
    } catch (const arguments::BadArguments& refusal) {
        return refusal.what();
    }
    return {};
}

void ExpectRefusalNames(const std::vector<std::string>& arguments, const std::string& name)
{
    const std::string refusal = RefusalOf(arguments);
    EXPECT_NE(refusal.find(name), std::string::npos) << refusal;
    EXPECT_NE(refusal.find("--help"), std::string::npos) << refusal;
}

} // namespace

TEST(Options, AreTheDemonstrationShopInAWindowWithoutArguments)
{
    const Options options = ParseOptions({});
    EXPECT_EQ(options.database, "");
    EXPECT_FALSE(options.demonstration);
    EXPECT_EQ(options.user, "");
    EXPECT_EQ(options.picture, "");
    EXPECT_FALSE(options.date.has_value());
    EXPECT_FALSE(options.look.has_value());
    EXPECT_FALSE(options.size.has_value());
    EXPECT_FALSE(options.firstPaint);
    EXPECT_FALSE(options.answer.has_value());
}

TEST(Options, KnowTheSwitchForMeasuringTheStart) { EXPECT_TRUE(ParseOptions({"--first-paint"}).firstPaint); }

TEST(Options, AskForTheDemonstrationOrForAShopButNotForBoth)
{
    EXPECT_TRUE(ParseOptions({"--demo"}).demonstration);
    ExpectRefusalNames({"--demo", "--database", "loja.db"}, "--database");
}

TEST(Options, TakeTheirValueFromTheNextArgument)
{
    const Options options = ParseOptions({"--database", "loja.db", "--user", "Ana Maria", "--date",
                                          "25/03/2026", "--picture", "a.png", "--size", "1920x1080"});
    EXPECT_EQ(options.database, "loja.db");
    EXPECT_EQ(options.user, "Ana Maria");
    EXPECT_EQ(options.date, (Date{2026, 3, 25}));
    EXPECT_EQ(options.picture, "a.png");
    EXPECT_EQ(options.size, (WindowSize{1920, 1080}));
}

TEST(Options, TakeTheirValueBehindAnEqualsSignWhichItMayHoldItself)
{
    EXPECT_EQ(ParseOptions({"--database=/a=b/loja.db"}).database, "/a=b/loja.db");
}

TEST(Options, TakeTheLastOfTwoValues) { EXPECT_EQ(ParseOptions({"--user", "A", "--user", "B"}).user, "B"); }

TEST(Options, KnowHelpByBothNames)
{
    EXPECT_EQ(ParseOptions({"--help"}).answer.value_or("").find("Kovaris: agenda de pet shops"), 0u);
    EXPECT_EQ(ParseOptions({"-h"}).answer, ParseOptions({"--help"}).answer);
    EXPECT_EQ(ParseOptions({"--version"}).answer.value_or("").find("kovaris "), 0u);
}

TEST(Options, RefuseAnUnknownNameAndSayIt)
{
    ExpectRefusalNames({"--databse", "loja.db"}, "--databse");
    ExpectRefusalNames({"loja.db"}, "loja.db");
    ExpectRefusalNames({""}, "\"\"");
}

TEST(Options, RefuseAMissingValue)
{
    ExpectRefusalNames({"--database"}, "--database");
    ExpectRefusalNames({"--user="}, "--user");
    ExpectRefusalNames({"--picture", ""}, "--picture");
}

TEST(Options, RefuseADayThatDoesNotExist)
{
    for (const char* day : {"30/02/2026", "2026-03-25", "amanhã", "25/03/1899", "25/03/3000", "25/03/26"})
        ExpectRefusalNames({"--date", day}, day);
}

TEST(Options, TakeADayFromTheFirstYearToTheLast)
{
    EXPECT_EQ(ParseOptions({"--date", "01/01/1900"}).date, (Date{1900, 1, 1}));
    EXPECT_EQ(ParseOptions({"--date", "31/12/2999"}).date, (Date{2999, 12, 31}));
}

TEST(Options, TakeATimeOfDay)
{
    EXPECT_EQ(ParseOptions({"--time", "08:30"}).time, (TimeOfDay{8, 30, 0}));
    EXPECT_FALSE(ParseOptions({}).time.has_value());
}

TEST(Options, RefuseATimeThatDoesNotExist)
{
    for (const char* time : {"24:00", "8h30", "agora", "12:60"})
        ExpectRefusalNames({"--time", time}, time);
}

TEST(Options, RefuseASizeThatNoWindowHas)
{
    for (const char* size : {"1366", "x768", "1366x", "799x600", "800x479", "1366x768x2", "-1366x768",
                             "99999x768", "1366X768", "7681x768", "1366x4321", "1366x768 "})
        ExpectRefusalNames({"--size", size}, size);
}

TEST(Options, TakeTheSizeOfAScreenThatIsDrawnTwiceAsLarge)
{
    EXPECT_EQ(ParseOptions({"--size", "960x540"}).size, (WindowSize{960, 540}));
    EXPECT_EQ(ParseOptions({"--size", "800x480"}).size, (WindowSize{800, 480}));
    EXPECT_EQ(ParseOptions({"--size", "7680x4320"}).size, (WindowSize{7680, 4320}));
}

TEST(Options, ChooseALook)
{
    EXPECT_EQ(ParseOptions({"--look", "escuro"}).look, LookChoice::Dark);
    EXPECT_EQ(ParseOptions({"--look=claro"}).look, LookChoice::Light);
    ExpectRefusalNames({"--look", "azul"}, "azul");
}

TEST(Options, HelpNamesEveryOption)
{
    const std::string help = ParseOptions({"--help"}).answer.value_or("");
    for (const char* name : {"--database", "--demo", "--user", "--date", "--time", "--picture", "--size",
                             "--look", "--first-paint", "--version", "--help"})
        EXPECT_NE(help.find(name), std::string::npos) << name;
}

} // namespace kova::host
