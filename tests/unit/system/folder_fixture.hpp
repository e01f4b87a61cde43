#pragma once

#include "system/path_text.hpp"
#include "system/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace kova::system {

/// A folder of the test's own, whose name has accents, as those of users' folders have.
class FolderTest : public testing::Test {
protected:
    FolderTest() { std::filesystem::create_directory(folder_.Path() / PathOf("Salão da Conceição")); }

    std::string In(const std::string& name) const
    {
        return TextOf(folder_.Path() / PathOf("Salão da Conceição") / PathOf(name));
    }

    static void Write(const std::string& file, const std::string& content)
    {
        std::ofstream(PathOf(file), std::ios::binary) << content;
    }

    static std::string ContentOf(const std::string& file)
    {
        std::ostringstream content;
        content << std::ifstream(PathOf(file), std::ios::binary).rdbuf();
        return content.str();
    }

    static bool IsThere(const std::string& file) { return std::filesystem::exists(PathOf(file)); }

    /// Names of what lies in the folder.
    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(PathOf(In(""))))
            names.push_back(TextOf(entry.path().filename()));
        return names;
    }

private:
    TemporaryFolder folder_{"teste"};
};

} // namespace kova::system
