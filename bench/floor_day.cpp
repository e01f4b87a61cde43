#include "bench/floor_day.hpp"

namespace kova::bench {

namespace {

/// Places of the statement's columns that the view shows, in the order of VisibleColumns; the status
/// column has no text.
constexpr std::array<int, VisibleColumns.size()> Places{0, 2, 5, 7, 12, 22, 24, -1};
constexpr int StatusPlace = 32;

FloorRow ReadRow(const RawStatement& statement)
{
    FloorRow row;
    for (std::size_t column = 0; column < Places.size(); ++column) {
        if (Places[column] < 0)
            continue;
        const std::string_view shown = statement.TextAt(Places[column]);
        row.texts[column] = QString::fromUtf8(shown.data(), static_cast<qsizetype>(shown.size()));
    }
    row.status = static_cast<int>(statement.NumberAt(StatusPlace));
    return row;
}

} // namespace

std::vector<FloorRow> ReadDay(RawStatement& statement, std::size_t rowsKept)
{
    std::vector<FloorRow> rows;
    while (statement.Step()) {
        if (rows.size() < rowsKept)
            rows.push_back(ReadRow(statement));
    }
    statement.Reset();
    return rows;
}

} // namespace kova::bench
