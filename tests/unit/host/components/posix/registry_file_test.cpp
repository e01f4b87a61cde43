// The registry's file where files have permissions and processes can be divided.

#include "host/components/registry.hpp"
#include "tests/unit/host/components/temporary_folder.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kova::host {

namespace {

constexpr const char* FirstId = "{11111111-2222-4333-8444-555555555501}";

class RegistryFile : public testing::Test {
protected:
    test::TemporaryFolder folder;
    Registry registry{folder.File("registro.txt")};
};

} // namespace

TEST_F(RegistryFile, KeepsThePermissionsAndTheLinkOfItsFile)
{
    test::WriteFile(registry.Path(), "");
    ::chmod(registry.Path().c_str(), 0640);
    Registry linked(folder.File("atalho.txt"));
    std::filesystem::create_symlink(registry.Path(), linked.Path());
    linked.Write({"A.clsA", FirstId, "/a.so"});
    EXPECT_TRUE(std::filesystem::is_symlink(linked.Path()));
    EXPECT_TRUE(registry.Find("A.clsA"));
    struct stat status;
    ASSERT_EQ(::stat(registry.Path().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0640U);
}

TEST_F(RegistryFile, LosesNothingWhenSeveralProcessesWriteAtOnce)
{
    constexpr int processes = 4;
    constexpr int classesOfEach = 15;
    std::vector<pid_t> children;
    for (int process = 0; process < processes; ++process) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (int number = 0; number < classesOfEach; ++number)
                registry.Write(
                    {"P" + std::to_string(process) + ".cls" + std::to_string(number), FirstId, "/lib/p.so"});
            ::_exit(0);
        }
        children.push_back(child);
    }
    for (const pid_t child : children) {
        int status = 1;
        ::waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(registry.Load().classes.size(), static_cast<std::size_t>(processes * classesOfEach));
    EXPECT_TRUE(registry.Load().problems.empty());
}

} // namespace kova::host
