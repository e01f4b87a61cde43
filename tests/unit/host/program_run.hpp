#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kova::host::test {

namespace fs = std::filesystem;

/// A folder of its own for one test, removed at its end. Its name has an accent, as homes of users may have.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const fs::path& Path() const { return path_; }
    fs::path operator/(const std::string& name) const { return path_ / name; }

private:
    fs::path path_;
};

struct ProgramResult {
    /// -1 where the program did not end by itself.
    int status = -1;
    std::string output;
    std::string errors;
};

/// Runs a program of the build folder to its end, without a display, as a user whose home is `home`.
ProgramResult RunProgram(const fs::path& program, const std::vector<std::string>& arguments,
                         const fs::path& home);
/// The application.
ProgramResult RunKovaris(const std::vector<std::string>& arguments, const fs::path& home);

/// Folder of the programs and their libraries.
fs::path BuildFolder();
/// A copy of that folder in the user's home, in which a test may damage what it likes.
fs::path CopyOfPrograms(const fs::path& home);

/// Whole content of a file; "" where there is none.
std::string ContentOf(const fs::path& file);
void WriteFile(const fs::path& file, const std::string& content);

} // namespace kova::host::test
