#pragma once

#include "host/arguments/arguments.hpp"

#include <istream>
#include <ostream>

namespace kova::data {

using arguments::Call;

/// Where a command reads what must not stand on its command line.
struct Input {
    std::istream& stream;
    /// By a person, at a console.
    bool isTyped = false;
};

/// What a command meets: where it reads and writes, and when it runs.
struct Surroundings {
    /// What was asked for.
    std::ostream& output;
    /// What went wrong, and how far long work has come.
    std::ostream& error;
    DateTime now;
    Input input;
    /// Whether the moment is by the computer's own clock, which a server's goes before.
    bool isByComputersClock = false;
};

/// A command; each stands in a file of its own and in the list of commands.cpp.
struct Command {
    arguments::Declaration words;
    /// Carries it out. Answers 0, or 1 where it has told in `error` what is wrong. Throws BadArguments for
    /// values it cannot take, and a Failure where the data cannot be read or written.
    int (*run)(const Call& call, Surroundings& surroundings);
};

} // namespace kova::data
