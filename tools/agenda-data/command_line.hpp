#pragma once

#include "agenda/contracts/date_time.hpp"

#include <span>
#include <stdexcept>
#include <string>

namespace kova::data {

enum class Command { Demo, Generate, Check, Help, Version };

struct Options {
    Command command = Command::Help;
    std::string file;
    Date date;
    int customers = 50000;
    long long appointments = 1000000;
};

/// A command line that cannot be carried out; the text is Portuguese.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads the arguments after the program's name. `today` is the date where none is given. Throws
/// UsageError.
Options ParseCommandLine(std::span<const char* const> arguments, Date today);

} // namespace kova::data
