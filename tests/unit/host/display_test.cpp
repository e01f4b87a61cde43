#include "host/display.hpp"
#include "tests/unit/host/fake_display.hpp"

#include <QLibraryInfo>

#include <gtest/gtest.h>

#include <cstdlib>

namespace kova::host {

namespace {

namespace fs = std::filesystem;

class TheDisplay : public testing::Test {
protected:
    TheDisplay()
    {
        std::string pattern = (fs::temp_directory_path() / "tela-XXXXXX").string();
        folder_ = mkdtemp(pattern.data());
    }
    ~TheDisplay() override { fs::remove_all(folder_); }

    NoDisplayNamed environment_;
    fs::path folder_;
};

} // namespace

TEST_F(TheDisplay, IsNotThereWithoutAnyName) { EXPECT_FALSE(HasDisplay()); }

TEST_F(TheDisplay, IsThereWhereAnXServerLetsUsIn)
{
    const int number = NoDisplayNamed::FreeNumber();
    const SocketServer server(NoDisplayNamed::SocketOfX(number), GreetingOfX(true));
    NoDisplayNamed::Name(number);
    EXPECT_TRUE(HasDisplay());
}

TEST_F(TheDisplay, IsNotThereWhereAnXServerDoesNotLetUsIn)
{
    const int number = NoDisplayNamed::FreeNumber();
    const SocketServer server(NoDisplayNamed::SocketOfX(number), GreetingOfX(false));
    NoDisplayNamed::Name(number);
    EXPECT_FALSE(HasDisplay());
}

TEST_F(TheDisplay, IsNotThereWhereNobodyAnswers)
{
    NoDisplayNamed::Name(NoDisplayNamed::FreeNumber());
    EXPECT_FALSE(HasDisplay());
    setenv("WAYLAND_DISPLAY", (folder_ / "ninguem").c_str(), 1);
    EXPECT_FALSE(HasDisplay());
    setenv("WAYLAND_DISPLAY", (folder_ / std::string(200, 'x')).c_str(), 1);
    EXPECT_FALSE(HasDisplay());
}

TEST_F(TheDisplay, IsNotAskedForWhereTheToolkitDrawsIntoMemory)
{
    const int number = NoDisplayNamed::FreeNumber();
    const SocketServer server(NoDisplayNamed::SocketOfX(number), GreetingOfX(true));
    NoDisplayNamed::Name(number);
    for (const char* platform : {"offscreen", "minimal"}) {
        setenv("QT_QPA_PLATFORM", platform, 1);
        EXPECT_FALSE(HasDisplay()) << platform;
    }
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    EXPECT_TRUE(HasDisplay());
    UseNoDisplay();
    EXPECT_FALSE(HasDisplay());
}

TEST_F(TheDisplay, OfWaylandCountsWhereTheToolkitSpeaksItsLanguage)
{
    const SocketServer server(folder_ / "wayland-7", "");
    setenv("XDG_RUNTIME_DIR", folder_.c_str(), 1);
    setenv("WAYLAND_DISPLAY", "wayland-7", 1);
    const fs::path plugins = QLibraryInfo::path(QLibraryInfo::PluginsPath).toStdString();
    EXPECT_EQ(HasDisplay(), fs::exists(plugins / "platforms" / "libqwayland-generic.so"));
}

} // namespace kova::host
