#include "system/rename.hpp"

#include "system/path_text.hpp"
#include "system/windows/last_error.hpp"

namespace kova::system {

/// The name is on the disk when the call is back: nothing else puts it there.
void RenameWithoutReplacing(const std::string& from, const std::string& to)
{
    const std::filesystem::path former = PathOf(from), name = PathOf(to);
    if (::MoveFileExW(former.c_str(), name.c_str(), MOVEFILE_WRITE_THROUGH))
        return;
    const std::error_code error = LastError();
    throw std::filesystem::filesystem_error("rename", name, error);
}

} // namespace kova::system
