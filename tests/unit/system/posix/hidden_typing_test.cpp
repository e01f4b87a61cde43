#include "system/hidden_typing.hpp"

#include <gtest/gtest.h>

#include <pty.h>
#include <termios.h>
#include <unistd.h>

namespace kova::system {

namespace {

/// A console in the place of the standard input.
class Console {
public:
    Console()
    {
        EXPECT_EQ(openpty(&outer_, &inner_, nullptr, nullptr, nullptr), 0);
        former_ = dup(STDIN_FILENO);
        dup2(inner_, STDIN_FILENO);
    }
    ~Console()
    {
        dup2(former_, STDIN_FILENO);
        for (const int one : {outer_, inner_, former_})
            close(one);
    }
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    bool ShowsWhatIsTyped() const
    {
        termios settings{};
        EXPECT_EQ(tcgetattr(inner_, &settings), 0);
        return (settings.c_lflag & ECHO) != 0;
    }

private:
    int outer_ = -1, inner_ = -1, former_ = -1;
};

/// A pipe in its place.
class Pipe {
public:
    Pipe()
    {
        EXPECT_EQ(pipe(ends_), 0);
        former_ = dup(STDIN_FILENO);
        dup2(ends_[0], STDIN_FILENO);
    }
    ~Pipe()
    {
        dup2(former_, STDIN_FILENO);
        for (const int one : {ends_[0], ends_[1], former_})
            close(one);
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

private:
    int ends_[2] = {-1, -1};
    int former_ = -1;
};

} // namespace

TEST(HiddenTyping, IsShownByNoConsoleUntilItIsOver)
{
    const Console console;
    EXPECT_TRUE(IsInputTyped());
    EXPECT_TRUE(console.ShowsWhatIsTyped());
    {
        const HiddenTyping hidden;
        EXPECT_FALSE(console.ShowsWhatIsTyped());
    }
    EXPECT_TRUE(console.ShowsWhatIsTyped());
}

TEST(HiddenTyping, DoesNothingWithoutAConsole)
{
    const Pipe input;
    EXPECT_FALSE(IsInputTyped());
    const HiddenTyping hidden;
    EXPECT_FALSE(IsInputTyped());
}

} // namespace kova::system
