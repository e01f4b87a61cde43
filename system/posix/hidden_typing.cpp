#include "system/hidden_typing.hpp"

#include <termios.h>
#include <unistd.h>

namespace kova::system {

struct HiddenTyping::Before {
    termios settings;
};

bool IsInputTyped() { return ::isatty(STDIN_FILENO) != 0; }

HiddenTyping::HiddenTyping()
{
    termios settings{};
    if (::tcgetattr(STDIN_FILENO, &settings) != 0)
        return;
    before_ = std::make_unique<Before>(Before{settings});
    settings.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &settings);
}

HiddenTyping::~HiddenTyping()
{
    if (before_)
        ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &before_->settings);
}

} // namespace kova::system
