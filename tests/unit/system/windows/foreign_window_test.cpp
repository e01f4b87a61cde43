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
    HWND Inner() const
    {
        return ::CreateWindowExW(0, L"STATIC", L"Dentro", WS_POPUP, 0, 0, 10, 10, HWND_MESSAGE, nullptr,
                                 nullptr, nullptr);
    }

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

TEST_F(ForeignWindowTest, GivesEveryKeyToWhatItHolds)
{
    const HWND inner = Inner();
    ASSERT_NE(inner, nullptr) << ::GetLastError();
    const LRESULT before = ::SendMessageW(inner, WM_GETDLGCODE, 0, 0);
    EXPECT_EQ(before & DLGC_WANTALLKEYS, 0);
    auto watched = Watch();
    watched->Hold(reinterpret_cast<std::intptr_t>(inner));
    const LRESULT wanted = DLGC_WANTALLKEYS | DLGC_WANTTAB | DLGC_WANTARROWS;
    EXPECT_EQ(::SendMessageW(inner, WM_GETDLGCODE, 0, 0) & wanted, wanted);
    watched.reset();
    EXPECT_EQ(::SendMessageW(inner, WM_GETDLGCODE, 0, 0), before);
    ::DestroyWindow(inner);
}

TEST_F(ForeignWindowTest, MayOutliveWhatItHolds)
{
    const HWND inner = Inner();
    ASSERT_NE(inner, nullptr) << ::GetLastError();
    auto watched = Watch();
    watched->Hold(reinterpret_cast<std::intptr_t>(inner));
    ::DestroyWindow(inner);
    ::SendMessageW(window, WM_SETFOCUS, 0, 0);
    watched.reset();
    EXPECT_TRUE(::IsWindow(window));
}

TEST_F(ForeignWindowTest, IsShutAndOpenedAgain)
{
    auto watched = Watch();
    watched->Block(true);
    EXPECT_FALSE(::IsWindowEnabled(window));
    watched->Block(false);
    EXPECT_TRUE(::IsWindowEnabled(window));
    ::EnableWindow(window, FALSE);
    watched->Block(true);
    watched->Block(false);
    EXPECT_FALSE(::IsWindowEnabled(window)) << "the program has shut it itself";
    ::EnableWindow(window, TRUE);
    watched->Block(true);
    watched.reset();
    EXPECT_TRUE(::IsWindowEnabled(window)) << "nobody would open it any more";
}

TEST_F(ForeignWindowTest, IsNoneOfAnotherThread)
{
    std::unique_ptr<ForeignWindow> watched;
    std::thread([&] { watched = Watch(); }).join();
    EXPECT_EQ(watched, nullptr);
}

} // namespace kova::system
