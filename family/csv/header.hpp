#pragma once

#include "family/csv/csv_reader.hpp"
#include "family/csv/line.hpp"

namespace kova::family::csv {

/// A column as the header of a file names it.
struct Title {
    std::string_view name;
    /// A file without it, and a line with it empty, cannot be imported.
    bool required = false;
};

/// Where the fields of a file's records belong, by its header. Names are found in any order, without regard
/// to case, accents and blanks around them.
class Header {
public:
    /// What cannot be a header goes to `problems`.
    Header(const CsvRecord& header, const std::vector<Title>& titles, std::string_view registerName,
           Problems& problems);

    /// The record's fields by the columns of the titles. What is wrong with its form goes to `problems`.
    Line Read(const CsvRecord& record, Problems& problems) const;

    /// Whether the file has that column.
    bool Has(std::size_t column) const;

private:
    static constexpr std::size_t None = static_cast<std::size_t>(-1);

    std::size_t Find(const std::string& name) const;
    void Place(const std::string& name, long long line, Problems& problems);
    void RequireAll(long long line, Problems& problems) const;
    std::string AllNames() const;

    const std::vector<Title>& titles_;
    std::string_view registerName_;
    /// The column of each field; None for one without a name.
    std::vector<std::size_t> columns_;
};

} // namespace kova::family::csv
