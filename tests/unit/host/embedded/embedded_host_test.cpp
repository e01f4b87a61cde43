#include "host/embedded/embedded_host.hpp"

#include "host/folders.hpp"
#include "host/session/remembered_shops.hpp"
#include "system/path_text.hpp"
#include "system/temporary_folder.hpp"
#include "tests/support/environment_variable.hpp"
#include "tests/support/qt_application.hpp"
#include "toolkits/qt/handles.hpp"

#include <gtest/gtest.h>

#include <QWidget>

#include <thread>

namespace kova::host {

namespace {

class NoComponents : public ComponentService {
public:
    ComponentRef CreateObject(std::string_view) override
    {
        throw Failure(FailureNumber::ClassCannotBeCreated);
    }
};

class Embedded : public testing::Test {
protected:
    Embedded() { kova::test::NeedApplication(); }

    const system::TemporaryFolder folder{"kovaris-embedded-"};
    const kova::test::EnvironmentVariable settings{"XDG_CONFIG_HOME", system::TextOf(folder.Path())};
    NoComponents components;
};

} // namespace

TEST_F(Embedded, HostsShareOneScreenAndFindComponentsEachByItsOwnService)
{
    EmbeddedScreen* screen = EmbeddedScreen::Get();
    ASSERT_NE(screen, nullptr);
    EXPECT_EQ(EmbeddedScreen::Get(), screen);
    NoComponents others;
    EmbeddedHost first(*screen, components);
    EmbeddedHost second(*screen, others);
    EXPECT_EQ(&first.GetPlatform().Toolkit(), &second.GetPlatform().Toolkit());
    EXPECT_EQ(&first.GetPlatform().Components(), &components);
    EXPECT_EQ(&second.GetPlatform().Components(), &others);
}

TEST_F(Embedded, TheScreenIsOneThreadsAlone)
{
    ASSERT_NE(EmbeddedScreen::Get(), nullptr);
    EmbeddedScreen* elsewhere = EmbeddedScreen::Get();
    std::thread([&] { elsewhere = EmbeddedScreen::Get(); }).join();
    EXPECT_EQ(elsewhere, nullptr);
}

TEST_F(Embedded, TheShopIsTheOneThatWasOpenedLast)
{
    EmbeddedHost host(*EmbeddedScreen::Get(), components);
    EXPECT_THROW(host.DataSource(), Failure);
    RememberedShops shops(SettingsFile());
    ASSERT_TRUE(shops.Remember({"/lojas/antiga.db", "Antiga"}));
    ASSERT_TRUE(shops.Remember({"/lojas/nova.db", "Nova"}));
    EXPECT_EQ(host.DataSource(), "/lojas/nova.db");
}

TEST(ContainerOfHandle, IsAWidgetOfOursBeforeOneThatIsMadeForAnothersWindow)
{
    kova::test::NeedApplication();
    static QWidget* made = nullptr;
    QWidget own;
    QWidget filling;
    made = &filling;
    EXPECT_EQ(qt::ContainerOfHandle(77), nullptr);
    qt::TakeForeignWindowsBy([](Long window) { return window == 77 ? made : nullptr; });
    EXPECT_EQ(qt::ContainerOfHandle(qt::HandleOf(own)), &own);
    EXPECT_EQ(qt::ContainerOfHandle(77), &filling);
    EXPECT_EQ(qt::ContainerOfHandle(78), nullptr);
    qt::TakeForeignWindowsBy(nullptr);
}

} // namespace kova::host
