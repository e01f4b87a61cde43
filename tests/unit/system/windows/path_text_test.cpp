#include "system/path_text.hpp"

#include <gtest/gtest.h>

namespace kova::system {

TEST(PathTextOnWindows, IsMadeOfTheSystemsOwnCharacters)
{
    EXPECT_EQ(PathOf("ação ½ €.db").native(), L"ação ½ €.db");
    EXPECT_EQ(TextOf(L"ação ½ €.db"), "ação ½ €.db");
}

TEST(PathTextOnWindows, OfWhatIsNoUtf8IsRefused)
{
    EXPECT_THROW(PathOf("a\xE7\xE3o.db"), std::filesystem::filesystem_error);
}

} // namespace kova::system
