#pragma once

#include "family/data/audit/audit_lines.hpp"

#include <string>
#include <vector>

namespace kova::family::history {

/// A line of the audit, and the row that it is about.
struct Line {
    std::string table;
    Key key = 0;
    /// Without values where what the audit has kept cannot be read.
    AuditLine audit;
    bool isReadable = true;
    /// It lies in the shop's archive.
    bool isArchived = false;
};

/// The lines from one on, the last that was written first.
struct Lines {
    std::vector<Line> lines;
    /// Whether there are others behind them.
    bool more = false;
};

} // namespace kova::family::history
