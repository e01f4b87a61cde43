#include "system/whole_file.hpp"

#include "system/path_text.hpp"
#include "system/windows/handle.hpp"
#include "system/windows/last_error.hpp"

#include <array>
#include <random>

namespace kova::system {

namespace {

namespace fs = std::filesystem;

HANDLE Open(const fs::path& path, DWORD access, DWORD disposition)
{
    return ::CreateFileW(path.c_str(), access, ShareAll, nullptr, disposition, FILE_ATTRIBUTE_NORMAL,
                         nullptr);
}

bool WriteAll(HANDLE file, std::string_view content)
{
    while (!content.empty()) {
        constexpr std::size_t AtOnce = 1 << 20;
        DWORD written = 0;
        const auto count = static_cast<DWORD>(std::min(content.size(), AtOnce));
        if (!::WriteFile(file, content.data(), count, &written, nullptr))
            return false;
        content.remove_prefix(written);
    }
    return true;
}

/// The file behind a chain of links, so that a plain file does not take a link's place.
fs::path WithoutLinks(const fs::path& path)
{
    std::error_code error;
    const fs::path target = fs::canonical(path, error);
    return error ? path : target;
}

/// A name beside the target that nobody bears.
fs::path TemporaryBeside(const fs::path& target)
{
    static constexpr std::wstring_view Letters = L"abcdefghijklmnopqrstuvwxyz0123456789";
    std::random_device random;
    std::wstring name = target.native() + L".";
    for (int count = 0; count < 6; ++count)
        name += Letters[random() % Letters.size()];
    return name;
}

bool WriteTemporary(const fs::path& temporary, const std::string& content)
{
    const Handle file(Open(temporary, GENERIC_WRITE, CREATE_NEW));
    return file.IsOpen() && WriteAll(file.Get(), content) && ::FlushFileBuffers(file.Get());
}

enum class Former { None, MayBeReplaced, MustStay };

Former FormerOf(const fs::path& target)
{
    const Handle file(Open(target, GENERIC_WRITE, OPEN_EXISTING));
    if (file.IsOpen())
        return Former::MayBeReplaced;
    return ::GetLastError() == ERROR_FILE_NOT_FOUND ? Former::None : Former::MustStay;
}

/// Once it is closed: an open file cannot be renamed.
bool PutInPlace(const fs::path& temporary, const fs::path& target, Former former)
{
    return former == Former::None
        ? ::MoveFileExW(temporary.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH) != 0
        : ::ReplaceFileW(target.c_str(), temporary.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr,
                         nullptr)
            != 0;
}

} // namespace

std::optional<std::string> ReadWholeFile(const std::string& path, std::error_code& error)
{
    const Handle file(Open(PathOf(path), GENERIC_READ, OPEN_EXISTING));
    std::string content;
    std::array<char, 16384> block;
    while (file.IsOpen()) {
        DWORD count = 0;
        if (!::ReadFile(file.Get(), block.data(), static_cast<DWORD>(block.size()), &count, nullptr))
            break;
        if (count == 0)
            return content;
        content.append(block.data(), count);
    }
    error = LastError();
    return std::nullopt;
}

/// Block by block: the language's own copying takes any two files for the same one here, and the system's
/// wants the other file for itself. Rights come from the folder.
void CopyWholeFile(const std::string& from, const std::string& to)
{
    const fs::path source = PathOf(from), target = PathOf(to);
    const Handle reading(Open(source, GENERIC_READ, OPEN_EXISTING));
    if (!reading.IsOpen())
        throw fs::filesystem_error("copy", source, LastError());
    const Handle writing(Open(target, GENERIC_WRITE, TRUNCATE_EXISTING));
    if (!writing.IsOpen())
        throw fs::filesystem_error("copy", target, LastError());
    std::array<char, 16384> block;
    DWORD count = 1;
    while (count > 0) {
        if (!::ReadFile(reading.Get(), block.data(), static_cast<DWORD>(block.size()), &count, nullptr))
            throw fs::filesystem_error("copy", source, LastError());
        if (!WriteAll(writing.Get(), {block.data(), count}))
            throw fs::filesystem_error("copy", target, LastError());
    }
}

bool ReplaceWholeFile(const std::string& path, const std::string& content, std::error_code& error)
{
    const fs::path target = WithoutLinks(PathOf(path));
    const Former former = FormerOf(target);
    if (former == Former::MustStay) {
        error = LastError();
        return false;
    }
    const fs::path temporary = TemporaryBeside(target);
    if (WriteTemporary(temporary, content) && PutInPlace(temporary, target, former))
        return true;
    error = LastError();
    ::DeleteFileW(temporary.c_str());
    return false;
}

} // namespace kova::system
