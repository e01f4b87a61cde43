#pragma once

#include <string>
#include <vector>

namespace kova::bench {

/// What a program took, seen from outside.
struct ProcessRun {
    /// From its start to the line on its standard output.
    double milliseconds = 0;
    /// Peak of its resident memory until it ended.
    double megabytes = 0;
};

/// Starts a program, words[0] being its path, waits for the line on its standard output and for its end.
/// Throws std::runtime_error where it cannot be started, does not print the line, or fails.
ProcessRun RunUntilLine(const std::vector<std::string>& words, const std::string& line);

} // namespace kova::bench
