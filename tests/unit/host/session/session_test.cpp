#include "host/folders.hpp"
#include "host/session/session_clock.hpp"
#include "host/session/session_user.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>

namespace kova::host {

namespace {

std::int32_t NumberOfFailure(const std::function<void()>& act)
{
    try {
        act();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

} // namespace

TEST(SessionUser, HasACodeAndAName)
{
    SessionUser user(7, "Ana");
    EXPECT_EQ(user.Get("Codigo"), Value(Long{7}));
    EXPECT_EQ(user.Get("Nome"), Value("Ana"));
}

TEST(SessionUser, CannotBeWrittenAndHasNothingElse)
{
    SessionUser user(7, "Ana");
    EXPECT_EQ(NumberOfFailure([&] { user.Set("Nome", "Bia"); }), 450);
    EXPECT_EQ(NumberOfFailure([&] { user.Set("Codigo", Long{8}); }), 450);
    EXPECT_EQ(NumberOfFailure([&] { user.Set("Senha", "x"); }), 438);
    EXPECT_EQ(NumberOfFailure([&] { user.Get("Senha"); }), 438);
    EXPECT_EQ(NumberOfFailure([&] { user.Call("Nome"); }), 438);
    EXPECT_EQ(user.Get("Nome"), Value("Ana"));
}

TEST(SessionUser, BecomesAnother)
{
    SessionUser user(7, "Ana");
    user.Become(8, "Bia");
    EXPECT_EQ(user.Get("Codigo"), Value(Long{8}));
    EXPECT_EQ(user.Get("Nome"), Value("Bia"));
}

TEST(SessionClock, StaysOnTheGivenDay)
{
    const SessionClock clock(Date{2026, 3, 25});
    EXPECT_EQ(clock.Now().date, (Date{2026, 3, 25}));
}

TEST(SessionClock, BeginsAtTheGivenTimeAndRunsOn)
{
    const TimeOfDay time = SessionClock({}, TimeOfDay{9, 30, 0}).Now().time;
    EXPECT_EQ(time.hour, 9);
    EXPECT_EQ(time.minute, 30);
    EXPECT_EQ(RunOn({9, 30, 15}, std::chrono::seconds(3645)), (TimeOfDay{10, 31, 0}));
    EXPECT_EQ(RunOn({23, 59, 59}, std::chrono::seconds(1)), (TimeOfDay{0, 0, 0}));
}

TEST(SessionClock, CountsSecondsSinceMidnightNeverBackWithinADay)
{
    const SessionClock clock;
    const Double first = clock.Timer();
    const Double second = clock.Timer();
    EXPECT_GE(first, 0);
    EXPECT_LT(first, 86400);
    // The difference is negative only where midnight has come between the two.
    EXPECT_TRUE(second >= first || second < 1);
}

TEST(SessionClock, PassesFasterThanTheComputersWhereItsPaceSaysSo)
{
    constexpr double thousandfold = 1000;
    const SessionClock clock({}, TimeOfDay{9, 30, 0}, thousandfold);
    const auto began = std::chrono::steady_clock::now();
    while (std::chrono::steady_clock::now() - began < std::chrono::milliseconds(2)) { }
    EXPECT_GE(clock.Timer(), 9 * 3600 + 30 * 60 + 2);
    EXPECT_NE(clock.Now().time, (TimeOfDay{9, 30, 0}));
}

TEST(Folders, FollowTheDesktopsConventions)
{
    setenv("XDG_DATA_HOME", "/dados", 1);
    setenv("XDG_CONFIG_HOME", "/ajustes", 1);
    EXPECT_EQ(DemonstrationDatabase(), "/dados/kovaris/demonstracao.db");
    EXPECT_EQ(RegistryFile(), "/dados/kovaris/componentes.reg");
    EXPECT_EQ(SettingsFolder(), "/ajustes/kovaris");
}

TEST(Folders, LieBelowHomeWhereTheConventionsNameNoneOrARelativeOne)
{
    unsetenv("XDG_DATA_HOME");
    setenv("XDG_CONFIG_HOME", "ajustes", 1);
    setenv("HOME", "/casa/ana", 1);
    EXPECT_EQ(DataFolder(), "/casa/ana/.local/share/kovaris");
    EXPECT_EQ(SettingsFolder(), "/casa/ana/.config/kovaris");
}

TEST(Folders, AreRefusedWithoutAHome)
{
    for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "HOME"})
        unsetenv(name);
    EXPECT_THROW(RegistryFile(), std::runtime_error);
    EXPECT_THROW(SettingsFolder(), std::runtime_error);
    setenv("XDG_DATA_HOME", "/dados", 1);
    EXPECT_NO_THROW(RegistryFile());
    EXPECT_THROW(RequireFolders(), std::runtime_error);
    setenv("XDG_CONFIG_HOME", "/ajustes", 1);
    EXPECT_NO_THROW(RequireFolders());
}

TEST(Folders, TheProgramsFolderIsThatOfTheRunningExecutable)
{
    EXPECT_TRUE(std::filesystem::exists(ProgramFolder() / "test_host"));
}

} // namespace kova::host
