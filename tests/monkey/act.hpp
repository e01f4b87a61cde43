#pragma once

#include <array>
#include <stdexcept>
#include <string>
#include <vector>

namespace kova::monkey {

/// What a user can do in one go.
enum class Verb {
    /// Sits down at a screen of that size, at so many percent and with a "light" or "dark" look: before
    /// anything
    /// else.
    Screen,
    /// The shop has users, who sign in. Before anything else, too.
    Users,
    Press,
    DoublePress,
    RightPress,
    Move,
    Drag,
    Wheel,
    Key,
    Type,
    Paste,
    Resize,
    Close,
    /// What a colleague at another desk does to the same data.
    OtherDesk,
    /// Escape and answers until the list takes input.
    GoHome,
};

/// One act as a file tells it, such as "press frmLista.kvcmdAdicionar 500 500" or "now key Ctrl+S". It names
/// things on the screen, so that a list of acts still makes sense when some of them are taken out: what is
/// not there when its turn comes is left alone.
struct Act {
    Verb verb = Verb::Key;
    /// Does not wait until the application takes input again.
    bool hasty = false;
    /// A thing on the screen (see screen.hpp), or "".
    std::string target{};
    /// Places in thousandths of the target's width and height; the turn of a wheel; a size in pixels.
    std::array<int, 4> numbers{};
    /// Keys, typed text, text pasted as many times as the first number says, what the other desk does.
    std::string text{};

    bool operator==(const Act&) const = default;
};

class BadAct : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

std::string ToLine(const Act& act);
/// Throws BadAct.
Act FromLine(const std::string& line);

/// Acts of a file, one on a line; blank lines and lines that begin with "#" tell nothing. Throws BadAct.
std::vector<Act> ReadActs(const std::string& file);
/// `remark` comes first, on lines that begin with "#".
void WriteActs(const std::string& file, const std::string& remark, const std::vector<Act>& acts);

} // namespace kova::monkey
