#include "system/network_disk.hpp"

#include "tests/unit/system/folder_fixture.hpp"

namespace kova::system {

class NetworkDiskOnWindows : public FolderTest { };

TEST_F(NetworkDiskOnWindows, IsNotThatOfTheUsersOwnFolders)
{
    Write(In("loja.db"), "");
    EXPECT_FALSE(IsOnNetworkDisk(In("loja.db")));
    EXPECT_FALSE(IsOnNetworkDisk(In("")));
}

TEST_F(NetworkDiskOnWindows, IsThatOfAServersShare)
{
    EXPECT_TRUE(IsOnNetworkDisk("\\\\servidor\\loja\\loja.db"));
    EXPECT_TRUE(IsOnNetworkDisk("//servidor/loja/loja.db"));
}

} // namespace kova::system
