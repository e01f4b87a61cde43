#pragma once

#include "agenda/contracts/reports.hpp"
#include "agenda/printing/layouts.hpp"
#include "reports/pages.hpp"

#include <functional>
#include <string>
#include <vector>

/// The four layouts, filled as printing fills them.
namespace kova::qt::test {

enum class Filling {
    /// No text in any field.
    Empty,
    /// One short word with its accent in each.
    Short,
    /// As much as each field can hold: names of 50 characters, addresses, 500-character remarks.
    Long,
};

struct Sample {
    ReportDesign design;
    RecordSetRef records;
};

/// A layout with its captions and with that many records.
Sample FilledReport(const ReportDesign& layout, Filling filling, int records);

/// The four layouts; lists come first.
const std::vector<const ReportDesign*>& AllLayouts();
bool IsList(const ReportDesign& layout);

/// Laid out as the screen toolkit does, on 20/11/2026.
reports::Document LaidOut(const Sample& sample);

/// A list of that many appointments, of "tutora-1" with "animal-1" and so on; seven fill a page.
Sample NumberedList(int appointments);

} // namespace kova::qt::test
