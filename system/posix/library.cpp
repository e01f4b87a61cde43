#include "system/library.hpp"

#include "system/library_ending.hpp"

#include <dlfcn.h>

namespace kova::system {

Library::Library(const std::string& path) : handle_(::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL))
{
    if (handle_)
        return;
    const char* reason = ::dlerror();
    throw LibraryNotLoaded(reason ? reason : "");
}

Library::~Library()
{
    if (unloads_)
        ::dlclose(handle_);
}

void* Library::Find(const char* name) const { return ::dlsym(handle_, name); }

std::string_view LibraryBeginning() { return "lib"; }

std::string_view LibraryEnding() { return ".so"; }

} // namespace kova::system
