#pragma once

#include "tools/scenario/language/statement.hpp"
#include "tools/scenario/scripted_components.hpp"

#include <string_view>
#include <vector>

namespace kova::scenario {

/// Lines of a script and the place that was reached in them. `file` is empty for the script itself.
struct ScriptLines {
    std::vector<std::string_view> lines;
    std::string file;
    std::size_t at = 0;

    /// The place of the line at `at`.
    ScriptLine Here() const { return {static_cast<int>(at) + 1, file}; }
};

/// The rows behind `records NAME FIELD ...`, up to and with `end`. Throws ScriptError.
RecordTable ParseRecords(ScriptLines& lines, const Statement& head);

/// The rows behind `appointments NAME`, up to and with `end`: each is an appointment's number and the fields
/// in which it differs from the usual appointment. Throws ScriptError.
RecordTable ParseAppointments(ScriptLines& lines, const Statement& head);

} // namespace kova::scenario
