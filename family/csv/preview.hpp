#pragma once

#include "family/csv/csv_reader.hpp"

namespace kova::family::csv {

/// The beginning of a file as an import understands it.
struct Preview {
    std::vector<std::string> titles;
    /// One cell for each title.
    std::vector<std::vector<std::string>> rows;
    /// Lines with a record in them, the header not counted.
    long long records = 0;
};

/// With the first `most` records.
Preview PreviewOf(std::string_view text, char separator, std::size_t most);

} // namespace kova::family::csv
