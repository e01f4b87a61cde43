#pragma once

#include "agenda/contracts/date_time.hpp"

#include <optional>
#include <string>
#include <vector>

namespace kova::host {

/// Size of the window in pixels.
struct WindowSize {
    int width = 1366;
    int height = 768;

    bool operator==(const WindowSize&) const = default;
};

enum class LookChoice { Light, Dark };

/// What the command line asks for.
struct Options {
    /// Path of the database, or its address on a server; "" is the demonstration shop.
    std::string database;
    /// The demonstration shop, whichever was open last.
    bool demonstration = false;
    /// Name of the session's user; "" is the name that the computer knows. In a shop with users whoever signs
    /// in.
    std::string user;
    /// The day shown instead of today's.
    std::optional<Date> date;
    /// The time of day at which the session begins, instead of the computer's.
    std::optional<TimeOfDay> time;
    /// Seconds that pass on the session's clock in one of the computer's: for those who cannot wait. The
    /// command line has none for it.
    double pace = 1;
    /// File for a picture of the window; "" opens the window.
    std::string picture;
    /// Nothing takes what fits the screen, or the usual size for a picture.
    std::optional<WindowSize> size;
    /// Nothing takes the desktop's look.
    std::optional<LookChoice> look;
    /// Lets in whoever has just made the shop, without a question; "" where somebody is asked. The command
    /// line has none for it.
    std::string entry;
    /// Somebody has typed them: a name, a day or a time of day hold in fictional shops only.
    bool isTyped = false;
    /// Ends as soon as the day has been painted: for those who measure the start.
    bool firstPaint = false;
    /// The help or the version: it is printed and nothing opened.
    std::optional<std::string> answer;
};

/// Reads the words behind the program's name. Throws BadArguments.
Options ParseOptions(const std::vector<std::string>& words);

} // namespace kova::host
