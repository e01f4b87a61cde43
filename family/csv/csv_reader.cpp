#include "family/csv/csv_reader.hpp"

#include <algorithm>

namespace kova::family::csv {

namespace {

constexpr std::string_view SeparatorLine = "sep=";

bool NamesSeparator(std::string_view text)
{
    const std::size_t after = SeparatorLine.size() + 1;
    return text.substr(0, SeparatorLine.size()) == SeparatorLine && text.size() >= after
        && (text.size() == after || text[after] == '\n' || text[after] == '\r');
}

std::size_t CountInFirstLine(std::string_view text, char separator)
{
    std::size_t count = 0;
    bool quoted = false;
    for (const char letter : text) {
        if (letter == '"')
            quoted = !quoted;
        else if (!quoted && (letter == '\n' || letter == '\r'))
            break;
        else if (!quoted && letter == separator)
            ++count;
    }
    return count;
}

} // namespace

bool CsvRecord::IsBlank() const
{
    return fault.empty() && std::all_of(fields.begin(), fields.end(), [](const std::string& field) {
               return field.find_first_not_of(" \t") == std::string::npos;
           });
}

CsvReader::CsvReader(std::string_view text, char separator) : text_(text), separator_(separator)
{
    if (NamesSeparator(text)) {
        at_ = SeparatorLine.size() + 1;
        PassLineEnd();
    }
}

bool CsvReader::Next(CsvRecord& record)
{
    if (AtEnd())
        return false;
    record.line = line_;
    record.fields.clear();
    record.fault = {};
    record.fields.push_back(Field(record));
    while (!AtLineEnd()) {
        ++at_;
        record.fields.push_back(Field(record));
    }
    PassLineEnd();
    return true;
}

void CsvReader::PassLineEnd()
{
    if (AtEnd())
        return;
    at_ += text_.substr(at_, 2) == "\r\n" ? 2 : 1;
    ++line_;
}

/// Leaves off at a separator or at the end of a line.
std::string CsvReader::Field(CsvRecord& record)
{
    return !AtEnd() && text_[at_] == '"' ? QuotedField(record) : PlainField();
}

std::string CsvReader::PlainField()
{
    const std::size_t start = at_;
    while (!AtLineEnd() && text_[at_] != separator_)
        ++at_;
    return std::string(text_.substr(start, at_ - start));
}

std::string CsvReader::QuotedField(CsvRecord& record)
{
    std::string field;
    for (++at_; !AtEnd(); ++at_) {
        const bool quote = text_[at_] == '"';
        if (quote && text_.substr(at_, 2) != "\"\"") {
            ++at_;
            if (!AtLineEnd() && text_[at_] != separator_)
                record.fault = "há texto depois das aspas que fecham um campo.";
            return field + PlainField();
        }
        if (quote)
            ++at_;
        if (EndsLine(text_, at_))
            ++line_;
        field += text_[at_];
    }
    record.fault = "as aspas que abrem um campo não são fechadas até o fim do arquivo.";
    return field;
}

char RecogniseSeparator(std::string_view text)
{
    if (NamesSeparator(text))
        return text[SeparatorLine.size()];
    const std::string_view candidates = ";,\t";
    return *std::max_element(candidates.begin(), candidates.end(), [&](char one, char other) {
        return CountInFirstLine(text, one) < CountInFirstLine(text, other);
    });
}

bool EndsLine(std::string_view text, std::size_t at)
{
    return text[at] == '\n' || (text[at] == '\r' && text.substr(at, 2) != "\r\n");
}

long long CountLines(std::string_view text)
{
    long long lines = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (EndsLine(text, at) || at + 1 == text.size())
            ++lines;
    }
    return lines;
}

} // namespace kova::family::csv
