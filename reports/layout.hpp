#pragma once

#include "agenda/contracts/date_time.hpp"
#include "reports/text_metrics.hpp"

namespace kova::reports {

/// A sheet, upright. A4 unless told otherwise.
struct Paper {
    Twips width = 11906;
    Twips height = 16838;
};

/// What is to be printed.
struct Job {
    const ReportDesign& design;
    /// Null prints head and foot alone. Walked from its first row to its end.
    RecordSet* records = nullptr;
    DateTime moment = {};
    Paper paper = {};
};

/// Lays a report out on pages; one at least. Head and foot stand on each, at the margins; a record moves
/// to the next page rather than being cut, and is cut only where no page could hold it. Where the paper
/// between the margins is narrower than the rightmost control, everything is scaled down evenly.
///
/// The rooms of head and foot are those that their captions need on the first page. Fails with what the
/// record set fails with, such as 3265 for a field that it does not have.
Document LayOut(const Job& job, const TextMetrics& metrics);

} // namespace kova::reports
