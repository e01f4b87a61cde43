#pragma once

#include <string>

namespace kova::test {

struct CommandEnd {
    /// The exit status; -1 where the program has crashed.
    int status = 0;
    /// Standard output and standard error, as they came.
    std::string text;
};

/// Has the system's shell run a line, and waits for its end.
CommandEnd RunCommand(const std::string& line);

} // namespace kova::test
