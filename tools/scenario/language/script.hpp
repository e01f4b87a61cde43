#pragma once

#include "tools/scenario/language/statement.hpp"
#include "tools/scenario/scripted_components.hpp"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kova::scenario {

/// A script: its statements in order, and the tables that it names.
struct Script {
    std::vector<Statement> statements;
    std::map<std::string, RecordTable> tables;
};

/// Gives the text of a set-up file, such as "shop.setup", or nothing where there is none.
using SetupReader = std::function<std::optional<std::string>(const std::string& file)>;

/// Reads a whole script. Comments and empty lines are dropped, `records` and `appointments` blocks become
/// tables, `use NAME` stands for the statements of NAME.setup. Throws ScriptError.
Script ParseScript(std::string_view text, const SetupReader& setups = {});

} // namespace kova::scenario
