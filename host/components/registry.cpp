#include "host/components/registry.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "agenda/contracts/utf8.hpp"
#include "host/components/component_error.hpp"
#include "system/file_lock.hpp"
#include "system/path_text.hpp"
#include "system/whole_file.hpp"

#include <algorithm>

namespace kova::host {

namespace {

bool IsHexDigit(char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }

bool IsClassId(std::string_view text)
{
    constexpr std::string_view shape = "{xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}";
    return text.size() == shape.size()
        && std::equal(text.begin(), text.end(), shape.begin(),
                      [](char c, char wanted) { return wanted == 'x' ? IsHexDigit(c) : c == wanted; });
}

bool IsUtf8WithoutControls(std::string_view text)
{
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = utf8::SequenceLength(text, at);
        const auto byte = static_cast<unsigned char>(text[at]);
        if (length == 1 && (byte < 0x20 || byte >= 0x7F))
            return false;
        at += length;
    }
    return true;
}

bool IsReadable(const ClassRegistration& registration)
{
    const auto isName = [](std::string_view text) { return !text.empty() && IsUtf8WithoutControls(text); };
    return isName(registration.className) && registration.className.front() != '#'
        && registration.className.find(' ') == std::string::npos && IsClassId(registration.classId)
        && isName(registration.libraryPath);
}

bool IsComment(std::string_view line)
{
    const auto first = line.find_first_not_of(" \t\r");
    return first == std::string_view::npos || line[first] == '#';
}

std::optional<ClassRegistration> ParseLine(std::string_view line)
{
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    const auto first = line.find('\t');
    const auto second = first == std::string_view::npos ? first : line.find('\t', first + 1);
    if (second == std::string_view::npos)
        return std::nullopt;
    ClassRegistration registration{std::string(line.substr(0, first)),
                                   std::string(line.substr(first + 1, second - first - 1)),
                                   std::string(line.substr(second + 1))};
    if (!IsReadable(registration))
        return std::nullopt;
    return registration;
}

bool IsLineOf(const std::string& line, std::string_view className)
{
    if (IsComment(line))
        return false;
    const auto registration = ParseLine(line);
    return registration && registration->className == className;
}

std::string Quoted(const std::string& path) { return "'" + path + "'"; }

std::filesystem::path FolderOf(const std::string& path)
{
    return std::filesystem::absolute(system::PathOf(path)).parent_path();
}

RegistryProblem ProblemOf(const std::string& path, int line, const std::string& text)
{
    return {line, text,
            "A linha " + std::to_string(line) + " do arquivo de registro " + Quoted(path)
                + " não pôde ser lida: \"" + text
                + "\". Corrija ou apague essa linha e registre novamente o componente."};
}

} // namespace

const ClassRegistration* RegistryContents::Find(std::string_view className) const
{
    const auto found = std::find_if(classes.begin(), classes.end(), [className](const auto& registration) {
        return registration.className == className;
    });
    return found == classes.end() ? nullptr : &*found;
}

RegistryContents Registry::Load() const
{
    RegistryContents contents;
    int number = 0;
    for (const std::string& line : ReadLines()) {
        ++number;
        if (IsComment(line))
            continue;
        if (auto registration = ParseLine(line)) {
            if (!contents.Find(registration->className))
                contents.classes.push_back(std::move(*registration));
        } else {
            contents.problems.push_back(ProblemOf(path_, number, line));
        }
    }
    return contents;
}

std::optional<ClassRegistration> Registry::Find(std::string_view className) const
{
    const RegistryContents contents = Load();
    const ClassRegistration* found = contents.Find(className);
    if (!found)
        return std::nullopt;
    ClassRegistration registration = *found;
    const auto folder = FolderOf(path_);
    registration.libraryPath =
        system::TextOf((folder / system::PathOf(registration.libraryPath)).lexically_normal());
    return registration;
}

Registry::Lines Registry::ReadLines() const
{
    std::error_code error;
    const auto content = system::ReadWholeFile(path_, error);
    if (!content && error != std::errc::no_such_file_or_directory)
        throw ComponentError(WithDetail("O arquivo de registro " + Quoted(path_)
                                            + " não pôde ser lido. Verifique as permissões do arquivo.",
                                        error.message()));
    Lines lines;
    const std::string_view text = content ? std::string_view(*content) : std::string_view();
    for (std::size_t begin = 0; begin < text.size();) {
        const auto end = std::min(text.find('\n', begin), text.size());
        lines.emplace_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return lines;
}

void Registry::WriteLines(const Lines& lines) const
{
    std::string content;
    for (const std::string& line : lines)
        content.append(line).append("\n");
    std::error_code error;
    if (!system::ReplaceWholeFile(path_, content, error))
        throw ComponentError(
            WithDetail("O arquivo de registro " + Quoted(path_)
                           + " não pôde ser gravado. Verifique as permissões da pasta e o espaço em disco.",
                       error.message()));
}

/// Reads, changes and writes the lines while no other program does. `change` answers whether there is
/// something to write.
template <class Change> void Registry::ChangeLocked(Change change)
{
    std::error_code error;
    std::filesystem::create_directories(FolderOf(path_), error);
    system::FileLock lock;
    // Where there is no folder, what the lock would say of it is not the reason.
    if (!error)
        lock = system::FileLock::Await(path_ + ".lock", error);
    if (!lock.IsHeld())
        throw ComponentError(
            WithDetail("O arquivo de registro " + Quoted(path_)
                           + " não pôde ser bloqueado para gravação. Verifique as permissões "
                             "da pasta e o espaço em disco.",
                       error.message()));
    Lines lines = ReadLines();
    if (change(lines))
        WriteLines(lines);
}

void Registry::Write(const ClassRegistration& registration)
{
    if (!IsReadable(registration))
        throw ComponentError("O componente " + Quoted(registration.className)
                             + " não pode ser registrado: o nome, o identificador "
                             + Quoted(registration.classId) + " ou o caminho "
                             + Quoted(registration.libraryPath) + " não é válido.");
    const std::string line =
        registration.className + '\t' + registration.classId + '\t' + registration.libraryPath;
    ChangeLocked([&](Lines& lines) {
        const auto isFormer = [&](const std::string& other) {
            return IsLineOf(other, registration.className);
        };
        const auto former = std::find_if(lines.begin(), lines.end(), isFormer);
        if (former == lines.end()) {
            lines.push_back(line);
            return true;
        }
        // What stands behind the first line of a class has never counted.
        lines.erase(std::remove_if(former + 1, lines.end(), isFormer), lines.end());
        *former = line;
        return true;
    });
}

void Registry::Remove(std::string_view className)
{
    ChangeLocked([className](Lines& lines) {
        return std::erase_if(lines, [&](const std::string& line) { return IsLineOf(line, className); }) > 0;
    });
}

} // namespace kova::host
