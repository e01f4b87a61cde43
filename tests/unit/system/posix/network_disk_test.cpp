#include "system/network_disk.hpp"

#include "system/posix/mounted_type.hpp"
#include "tests/support/network_disk.hpp"
#include "tests/unit/system/folder_fixture.hpp"

namespace kova::system {

class NetworkDiskOnPosix : public FolderTest { };

TEST_F(NetworkDiskOnPosix, IsToldByTheKindOfTheFileSystem)
{
    Write(In("loja.db"), "");
    EXPECT_FALSE(IsOnNetworkDisk(In("loja.db")));
    for (const long kind : {0x6969L, 0x517BL, 0xFF534D42L, 0xFE534D42L, 0x01021997L, 0x00C36400L}) {
        const test::NetworkDisk share(In(""), kind);
        EXPECT_TRUE(IsOnNetworkDisk(In("loja.db"))) << kind;
        EXPECT_TRUE(IsOnNetworkDisk(In(""))) << kind;
    }
    for (const long kind : {0xEF53L, 0x58465342L, 0x9123683EL, 0x01021994L, 0x4D44L}) {
        const test::NetworkDisk disk(In(""), kind);
        EXPECT_FALSE(IsOnNetworkDisk(In("loja.db"))) << kind;
    }
}

TEST_F(NetworkDiskOnPosix, IsNotToldOfADiskThatAProgramOfThisComputerServes)
{
    const test::NetworkDisk served(In(""), 0x65735546);
    Write(In("loja.db"), "");
    EXPECT_FALSE(IsOnNetworkDisk(In("loja.db")));
}

TEST_F(NetworkDiskOnPosix, IsNoneWhereThereIsNothing) { EXPECT_FALSE(IsOnNetworkDisk(In("nenhum"))); }

TEST_F(NetworkDiskOnPosix, IsToldByTheProgramThatServesIt)
{
    Write(In("montagens"),
          "22 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n"
          "90 22 0:52 / /mnt/loja rw,nosuid shared:5 master:2 - fuse.sshfs ana@servidor:/ rw,user_id=0\n"
          "91 22 0:53 / /mnt/segredo rw - fuse.gocryptfs /casa/segredo rw\n"
          "92 22 8:17 / /mnt/disco rw shared:9 - fuseblk /dev/sdb1 rw\n");
    EXPECT_EQ(MountedType(In("montagens"), "0:52"), "fuse.sshfs");
    EXPECT_EQ(MountedType(In("montagens"), "0:53"), "fuse.gocryptfs");
    EXPECT_EQ(MountedType(In("montagens"), "8:17"), "fuseblk");
    EXPECT_EQ(MountedType(In("montagens"), "0:5"), "");
    EXPECT_EQ(MountedType(In("nenhum"), "0:52"), "");
    EXPECT_TRUE(ServesNetwork("fuse.sshfs"));
    EXPECT_TRUE(ServesNetwork("fuse.gvfsd-fuse"));
    for (const char* local : {"fuse.gocryptfs", "fuseblk", ""})
        EXPECT_FALSE(ServesNetwork(local)) << local;
}

} // namespace kova::system
