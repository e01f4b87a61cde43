#pragma once

#include "agenda/contracts/date_time.hpp"

#include <optional>
#include <stdexcept>
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
    /// Name of the session's user; "" is the name that the computer knows.
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
    /// Ends as soon as the day has been painted: for those who measure the start.
    bool firstPaint = false;
    bool showVersion = false;
    bool showHelp = false;
};

/// A command line that cannot be understood; the text says what is wrong and what to do.
class BadOptions : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads the arguments behind the program's name, given as "--name VALUE" or "--name=VALUE". A name that
/// comes twice counts the last time. Throws BadOptions.
Options ParseOptions(const std::vector<std::string>& arguments);

/// The help text, in Portuguese, with a line break at the end.
std::string HelpText();

} // namespace kova::host
