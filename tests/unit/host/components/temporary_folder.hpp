#pragma once

#include "system/path_text.hpp"
#include "system/temporary_folder.hpp"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace kova::test {

/// A fresh folder, with accents in its name, that goes with its content at the end of the scope.
class TemporaryFolder {
public:
    std::string File(const std::string& name) const
    {
        return system::TextOf((folder_.Path() / system::PathOf(name)).make_preferred());
    }

    /// The full path of what lies there on the folder's disk, as this system writes it: from "/lib/a.so".
    std::string OnItsDisk(const std::string& path) const
    {
        return system::TextOf((folder_.Path().root_name() / system::PathOf(path)).make_preferred());
    }

private:
    system::TemporaryFolder folder_{"conceição"};
};

inline void WriteFile(const std::string& path, const std::string& content)
{
    std::ofstream(system::PathOf(path), std::ios::binary) << content;
}

inline std::string ContentOf(const std::string& path)
{
    std::ostringstream content;
    content << std::ifstream(system::PathOf(path), std::ios::binary).rdbuf();
    return content.str();
}

} // namespace kova::test
