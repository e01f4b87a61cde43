#include "family/csv/csv_writer.hpp"

namespace kova::family::csv {

namespace {

bool NeedsQuotes(std::string_view field, char separator)
{
    const char marks[] = {separator, '"', '\n', '\r'};
    return field.find_first_of(std::string_view(marks, sizeof marks)) != std::string_view::npos
        || (!field.empty() && (field.front() == ' ' || field.back() == ' '));
}

std::string Quoted(std::string_view field)
{
    std::string quoted = "\"";
    for (const char letter : field) {
        if (letter == '"')
            quoted += '"';
        quoted += letter;
    }
    return quoted + '"';
}

/// Apostrophes at the beginning count as guards: a text that looks guarded is guarded once more.
bool LooksCalculated(std::string_view field)
{
    const std::size_t at = field.find_first_not_of('\'');
    return at != std::string_view::npos
        && std::string_view("=+-@\t").find(field[at]) != std::string_view::npos;
}

} // namespace

std::string CsvLine(const std::vector<std::string>& fields, char separator)
{
    std::string line;
    for (const std::string& field : fields) {
        if (&field != &fields.front())
            line += separator;
        line += NeedsQuotes(field, separator) ? Quoted(field) : field;
    }
    return line + "\r\n";
}

std::string Guarded(std::string field) { return LooksCalculated(field) ? "'" + field : field; }

std::string Unguarded(std::string field)
{
    if (!field.empty() && field.front() == '\'' && LooksCalculated(field))
        field.erase(0, 1);
    return field;
}

} // namespace kova::family::csv
