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
    bool help = false;
};

/// Reads the words behind the program's name. Throws std::invalid_argument with a text for the user.
RunOptions ParseOptions(const std::vector<std::string>& words);

/// How to call the program.
std::string HelpText();

} // namespace kova::scenario
