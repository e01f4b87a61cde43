#pragma once

#include <optional>
#include <string>
#include <vector>

namespace kova::scenario {

/// What the command line of agenda-scenario asks for.
struct RunOptions {
    std::string file;
    /// Answers of the reference components on this data source; "" answers from the script.
    std::string database;
    /// The screen that the script plays on.
    std::string toolkit = "headless";
    bool printsWidgetWrites = false;
    int failAt = 0;
    int failWidgetsAt = 0;
    bool printsCount = false;
    /// The help or the version: it is printed and nothing else done.
    std::optional<std::string> answer;
};

/// Reads the words behind the program's name. Throws BadArguments.
RunOptions ParseOptions(const std::vector<std::string>& words);

} // namespace kova::scenario
