#pragma once

#include <filesystem>
#include <string_view>

namespace kova::system {

/// A new folder for what is temporary, where nobody but this user sees what lies in it. It goes with all it
/// holds.
class TemporaryFolder {
public:
    /// Its name begins so. Throws std::system_error where it cannot be made.
    explicit TemporaryFolder(std::string_view beginning);
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }

private:
    std::filesystem::path path_;
};

} // namespace kova::system
