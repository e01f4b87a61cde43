#pragma once

#include "host/arguments/arguments.hpp"

#include <ostream>

namespace kova::data {

using arguments::Call;

/// What a command meets: where it writes, and when it runs.
struct Surroundings {
    /// What was asked for.
    std::ostream& output;
    /// What went wrong, and how far long work has come.
    std::ostream& error;
    DateTime now;
};

/// A command; each stands in a file of its own and in the list of commands.cpp.
struct Command {
    arguments::Declaration words;
    /// Carries it out. Answers 0, or 1 where it has told in `error` what is wrong. Throws BadArguments for
    /// values it cannot take, and a Failure where the data cannot be read or written.
    int (*run)(const Call& call, Surroundings& surroundings);
};

} // namespace kova::data
