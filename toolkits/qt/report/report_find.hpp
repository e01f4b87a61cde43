#pragma once

#include <cstddef>
#include <vector>

class QString;

namespace kova::reports {
struct Document;
}

namespace kova::qt {

/// A text of a report that holds what was looked for; numbers count from 0.
struct ReportMatch {
    std::size_t page = 0;
    std::size_t item = 0;

    friend bool operator==(const ReportMatch&, const ReportMatch&) = default;
};

/// All texts that hold `wanted`, in reading order. Upper and lower case and accents make no difference.
/// Nothing is found where `wanted` is empty.
std::vector<ReportMatch> FindInReport(const reports::Document& document, const QString& wanted);

} // namespace kova::qt
