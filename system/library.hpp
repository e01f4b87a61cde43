#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace kova::system {

/// A library that could not be loaded. The text is the loader's own, "" where it says nothing.
class LibraryNotLoaded : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A loaded library. Its names are seen by nobody who does not ask for them here.
class Library {
public:
    /// Loads the file at that path, or the system's library of that name, with all that it needs; its static
    /// initialisation runs. Throws LibraryNotLoaded.
    explicit Library(const std::string& path);
    ~Library();
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    /// Address of what it exports under that name; null where it exports nothing so called.
    void* Find(const char* name) const;

    /// Leaves it loaded for the rest of the process when this goes.
    void Abandon() { unloads_ = false; }

private:
    void* handle_ = nullptr;
    bool unloads_ = true;
};

/// What the file of a library is called on this system: "libNAME.so", "NAME.dll".
std::string LibraryFile(std::string_view name);

/// The name within; "" where a file so called is no library.
std::string LibraryNameIn(std::string_view file);

} // namespace kova::system
