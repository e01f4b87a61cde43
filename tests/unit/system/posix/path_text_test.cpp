#include "tests/unit/system/folder_fixture.hpp"

namespace kova::system {

TEST(PathTextOnPosix, KeepsBytesThatAreNoUtf8)
{
    EXPECT_EQ(PathOf("a\xE7\xE3o.db").native(), "a\xE7\xE3o.db");
    EXPECT_EQ(TextOf(PathOf("a\xE7\xE3o.db")), "a\xE7\xE3o.db");
}

} // namespace kova::system
