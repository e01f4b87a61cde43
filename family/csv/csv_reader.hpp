#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kova::family::csv {

struct CsvRecord {
    /// Of the file, from 1: where the record begins.
    long long line = 0;
    std::vector<std::string> fields;
    /// What is wrong with its quotes, in Portuguese; empty where nothing is.
    std::string_view fault;

    bool IsBlank() const;
};

/// Reads records from a text in UTF-8. Fields may stand in quotes, with separators and line breaks inside
/// and quotes doubled; lines end with LF, CRLF or CR. A copy goes on reading from where it was made.
///
/// No library reads them: those for such files stop at the first fault, or mend it in silence, while an
/// import tells every one of a file with its line and goes on behind it.
class CsvReader {
public:
    /// `text` must outlive the reader. A line "sep=x" at its beginning is no record.
    CsvReader(std::string_view text, char separator);

    /// False at the end of the text.
    bool Next(CsvRecord& record);

private:
    bool AtEnd() const { return at_ >= text_.size(); }
    bool AtLineEnd() const { return AtEnd() || text_[at_] == '\n' || text_[at_] == '\r'; }
    void PassLineEnd();
    std::string Field(CsvRecord& record);
    std::string QuotedField(CsvRecord& record);
    std::string PlainField();

    std::string_view text_;
    char separator_;
    std::size_t at_ = 0;
    long long line_ = 1;
};

/// The separator that a text names in a line "sep=x", or that its first line holds most often outside
/// quotes: ';', ',' or a tab. ';' where it holds none.
char RecogniseSeparator(std::string_view text);

/// Whether a line ends with that character: LF, or a CR that no LF follows.
bool EndsLine(std::string_view text, std::size_t at);

/// Number of lines, the last one also where no line break ends it.
long long CountLines(std::string_view text);

} // namespace kova::family::csv
