#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace kova::test {

/// A fresh folder, with accents in its name, that goes with its content at the end of the scope.
class TemporaryFolder {
public:
    TemporaryFolder()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "conceição-XXXXXX").string();
        path_ = ::mkdtemp(pattern.data());
    }
    ~TemporaryFolder() { std::filesystem::remove_all(path_); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string File(const std::string& name) const { return (path_ / name).string(); }

private:
    std::filesystem::path path_;
};

inline void WriteFile(const std::string& path, const std::string& content)
{
    std::ofstream(path, std::ios::binary) << content;
}

inline std::string ContentOf(const std::string& path)
{
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

} // namespace kova::test
