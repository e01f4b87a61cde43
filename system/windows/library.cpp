#include "system/library.hpp"

#include "system/library_ending.hpp"
#include "system/path_text.hpp"
#include "system/windows/last_error.hpp"

namespace kova::system {

namespace {

/// What the library needs is looked for beside it. Only a full path may be searched so.
HMODULE Load(const std::filesystem::path& path)
{
    return ::LoadLibraryExW(path.c_str(), nullptr, path.is_absolute() ? LOAD_WITH_ALTERED_SEARCH_PATH : 0);
}

} // namespace

Library::Library(const std::string& path) : handle_(Load(PathOf(path)))
{
    // Asked right behind the call: the next one, also one within the language's library, forgets it.
    const std::error_code error = LastError();
    if (!handle_)
        throw LibraryNotLoaded(error.message());
}

Library::~Library()
{
    if (unloads_)
        ::FreeLibrary(static_cast<HMODULE>(handle_));
}

void* Library::Find(const char* name) const
{
    return reinterpret_cast<void*>(::GetProcAddress(static_cast<HMODULE>(handle_), name));
}

std::string_view LibraryBeginning() { return {}; }

std::string_view LibraryEnding() { return ".dll"; }

} // namespace kova::system
