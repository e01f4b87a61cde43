#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kova::host {

/// The text of a settings file as sections and keys. It keeps every byte of the lines that it is not
/// asked to change: comments, text before the first section, lines that are no key.
///
/// Names of sections and keys are compared without the case of ASCII letters. Of equal sections only the
/// first is looked at, of equal keys in a section the first counts. Blanks, tabs and vertical tabs around
/// names and values do not belong to them. A line whose first character is ";" is a comment.
///
/// No library reads it: those that know such files write them anew, and lose comments, order and spelling of
/// a file that people edit too.
class IniText {
public:
    /// Reads lines that end in CR LF, CR, LF or with the text.
    explicit IniText(std::string_view text);

    /// Without the blanks around it and without one pair of equal quotes; nothing where there is no such
    /// key.
    std::optional<std::string> Value(std::string_view section, std::string_view key) const;

    /// Puts "key=value" and CR LF in the place of the key's line, whose spelling of the key stays; else
    /// behind the last key of its section; else in a new section at the end. The value is written as it is
    /// given.
    void SetValue(std::string_view section, std::string_view key, std::string_view value);

    /// The whole text.
    std::string ToString() const;

private:
    /// With their line ends.
    using Lines = std::vector<std::string>;
    /// Lines of a section, from the one behind its header to the one before the next header.
    struct Range {
        std::size_t begin;
        std::size_t end;
    };

    std::optional<Range> FindSection(std::string_view section) const;
    std::optional<std::size_t> FindKey(Range range, std::string_view key) const;
    std::size_t BehindLastKey(Range range) const;
    void EndLastLine();

    Lines lines_;
};

} // namespace kova::host
