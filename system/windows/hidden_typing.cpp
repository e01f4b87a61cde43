#include "system/hidden_typing.hpp"

#include <windows.h>

namespace kova::system {

struct HiddenTyping::Before {
    HANDLE input;
    DWORD mode;
};

bool IsInputTyped()
{
    DWORD mode = 0;
    return ::GetConsoleMode(::GetStdHandle(STD_INPUT_HANDLE), &mode) != 0;
}

HiddenTyping::HiddenTyping()
{
    Before before{::GetStdHandle(STD_INPUT_HANDLE), 0};
    if (::GetConsoleMode(before.input, &before.mode) == 0)
        return;
    before_ = std::make_unique<Before>(before);
    ::SetConsoleMode(before.input, before.mode & ~static_cast<DWORD>(ENABLE_ECHO_INPUT));
}

HiddenTyping::~HiddenTyping()
{
    if (before_)
        ::SetConsoleMode(before_->input, before_->mode);
}

} // namespace kova::system
