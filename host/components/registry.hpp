#pragma once

#include "agenda/contracts/component_server.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kova::host {

/// A line of the registry file that cannot be read.
struct RegistryProblem {
    /// From 1.
    int line = 0;
    std::string text;
    /// Portuguese; names the file and the line and says what to do.
    std::string message;
};

/// What a registry file holds.
struct RegistryContents {
    /// In the file's order; of several lines with one class name, the first.
    std::vector<ClassRegistration> classes;
    std::vector<RegistryProblem> problems;

    /// Names are compared letter for letter.
    const ClassRegistration* Find(std::string_view className) const;
};

/// The file in which component classes are found by name. UTF-8 text, one class in a line:
/// class name, tab, "{8-4-4-4-12}", tab, path of the library. A path without a leading "/" counts from the
/// file's folder. Blank lines and lines that begin with "#" are comments.
///
/// Several programs may write at once: a lock file beside it, the path with ".lock", puts them in a row.
/// Readers need no lock, since a write replaces the file in one step.
class Registry {
public:
    explicit Registry(std::string path) : path_(std::move(path)) { }

    const std::string& Path() const { return path_; }

    /// Reads the file; one that is not there is empty. Fails with ComponentError where it is there and
    /// cannot be read.
    RegistryContents Load() const;
    /// The class with its library's full path; nothing where it is not registered. Fails as Load.
    std::optional<ClassRegistration> Find(std::string_view className) const;

    /// Adds the class, or puts it in the place of its former line. All other lines stay as they are, also
    /// those that cannot be read. Makes the file and its folder where they are missing. Fails with
    /// ComponentError on a registration that makes no readable line and where the file cannot be read or
    /// written.
    void Write(const ClassRegistration& registration);
    /// Takes out every line of the class; nothing happens where there is none. Fails as Write.
    void Remove(std::string_view className);

private:
    using Lines = std::vector<std::string>;

    Lines ReadLines() const;
    void WriteLines(const Lines& lines) const;
    template <class Change> void ChangeLocked(Change change);

    std::string path_;
};

} // namespace kova::host
