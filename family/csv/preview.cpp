#include "family/csv/preview.hpp"

#include "family/business/clean_text.hpp"
#include "family/csv/csv_writer.hpp"

#include <limits>

namespace kova::family::csv {

namespace {

std::vector<std::string> CellsOf(const CsvRecord& record)
{
    std::vector<std::string> cells;
    for (const std::string& field : record.fields)
        cells.push_back(Unguarded(CleanText(field, std::numeric_limits<std::size_t>::max())));
    return cells;
}

} // namespace

Preview PreviewOf(std::string_view text, char separator, std::size_t most)
{
    Preview preview;
    CsvReader reader(text, separator);
    CsvRecord record;
    if (!reader.Next(record))
        return preview;
    preview.titles = CellsOf(record);
    while (reader.Next(record)) {
        if (record.IsBlank())
            continue;
        if (++preview.records > static_cast<long long>(most))
            continue;
        preview.rows.push_back(CellsOf(record));
        preview.rows.back().resize(preview.titles.size());
    }
    return preview;
}

} // namespace kova::family::csv
