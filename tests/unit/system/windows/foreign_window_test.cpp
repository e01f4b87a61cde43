#include "system/foreign_window.hpp"

#include <windows.h>

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace kova::system {

namespace {

class ForeignWindowTest : public testing::Test {
protected:
    ~ForeignWindowTest() override { ::DestroyWindow(window); }

    std::unique_ptr<ForeignWindow> Watch()
    {
        return ForeignWindow::Of(
            reinterpret_cast<std::intptr_t>(window),
            {[this](int width, int height) { sizes.emplace_back(width, height); }, [this] { ++ends; }});
    }

    // One that no screen is needed for.
    HWND window = ::CreateWindowExW(0, L"STATIC", L"Outro", WS_POPUP, 0, 0, 300, 200, HWND_MESSAGE, nullptr,
                                    nullptr, nullptr);
    std::vector<std::pair<int, int>> sizes;
    int ends = 0;
};

} // namespace

TEST_F(ForeignWindowTest, TellsItsSizeAndWhenItChanges)
{
    const auto watched = Watch();
    ASSERT_NE(watched, nullptr);
    EXPECT_EQ(watched->Width(), 300);
    EXPECT_EQ(watched->Height(), 200);
    ::SetWindowPos(window, nullptr, 0, 0, 500, 400, SWP_NOZORDER);
    EXPECT_EQ(sizes, (std::vector<std::pair<int, int>>{{500, 400}}));
}

TEST_F(ForeignWindowTest, TellsItsEndOnce)
{
    auto watched = Watch();
    ::DestroyWindow(window);
    EXPECT_EQ(ends, 1);
    watched.reset();
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(Watch(), nullptr);
}

TEST_F(ForeignWindowTest, IsLeftAloneOnceNobodyWatchesIt)
{
    Watch().reset();
    ::SetWindowPos(window, nullptr, 0, 0, 500, 400, SWP_NOZORDER);
    EXPECT_TRUE(sizes.empty());
}

TEST_F(ForeignWindowTest, IsNoneOfAnotherThread)
{
    std::unique_ptr<ForeignWindow> watched;
    std::thread([&] { watched = Watch(); }).join();
    EXPECT_EQ(watched, nullptr);
}

} // namespace kova::system
