#include "system/path_text.hpp"
#include "system/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <fstream>

namespace kova::system {

TEST(ATemporaryFolder, IsNewAndEmptyAndNamedAsAskedFor)
{
    const TemporaryFolder one("ração"), other("ração");
    EXPECT_NE(one.Path(), other.Path());
    EXPECT_TRUE(std::filesystem::is_empty(one.Path()));
    EXPECT_TRUE(TextOf(one.Path().filename()).starts_with("ração-"));
    EXPECT_EQ(one.Path(), std::filesystem::temp_directory_path() / one.Path().filename());
}

TEST(ATemporaryFolder, GoesWithAllItHolds)
{
    std::filesystem::path path;
    {
        const TemporaryFolder folder("ração");
        path = folder.Path();
        std::filesystem::create_directory(path / "um");
        std::ofstream(path / "um" / "dois") << "x";
    }
    EXPECT_FALSE(std::filesystem::exists(path));
}

} // namespace kova::system
