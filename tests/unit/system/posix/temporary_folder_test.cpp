#include "system/temporary_folder.hpp"
#include "tests/support/environment_variable.hpp"

#include <gtest/gtest.h>

#include <filesystem>

namespace kova::system {

TEST(ATemporaryFolderOnPosix, IsSeenByItsUserOnly)
{
    const TemporaryFolder folder("teste");
    EXPECT_EQ(std::filesystem::status(folder.Path()).permissions(), std::filesystem::perms::owner_all);
}

TEST(ATemporaryFolderOnPosix, SaysThatItCannotBeMade)
{
    const TemporaryFolder place("teste");
    const test::EnvironmentVariable variable("TMPDIR", place.Path().string());
    std::filesystem::remove(place.Path());
    EXPECT_THROW(TemporaryFolder("teste"), std::system_error);
}

} // namespace kova::system
