#include "host/components/profile_file.hpp"

#include "agenda/contracts/text.hpp"
#include "host/components/ini_text.hpp"
#include "system/whole_file.hpp"

namespace kova::host {

namespace {

Text WithoutTrailingBlanks(const Text& text) { return text.substr(0, text.find_last_not_of(' ') + 1); }

bool FitsOneLine(const Text& text)
{
    constexpr std::string_view breaks("\r\n\0", 3);
    return text.find_first_of(breaks) == Text::npos;
}

} // namespace

Text ProfileFile::Read(const Text& section, const Text& key, const Text& defaultValue, Integer size,
                       const Text& path) const
{
    if (size < 1)
        return {};
    std::error_code unreadable;
    const auto content = system::ReadWholeFile(path, unreadable);
    const auto value = content ? IniText(*content).Value(Trim(section), Trim(key)) : std::nullopt;
    return Left(value ? *value : WithoutTrailingBlanks(defaultValue), static_cast<std::size_t>(size - 1));
}

bool ProfileFile::Write(const Text& section, const Text& key, const Text& value, const Text& path)
{
    if (!FitsOneLine(section) || !FitsOneLine(key) || !FitsOneLine(value))
        return false;
    std::error_code error;
    const auto content = system::ReadWholeFile(path, error);
    if (!content && error != std::errc::no_such_file_or_directory)
        return false;
    IniText text(content.value_or(std::string()));
    text.SetValue(Trim(section), Trim(key), value);
    return system::ReplaceWholeFile(path, text.ToString(), error);
}

} // namespace kova::host
