#include "system/posix/release_file.hpp"
#include "tests/unit/system/folder_fixture.hpp"

namespace kova::system {

namespace {

class ReleaseFile : public FolderTest {
protected:
    std::string NameIn(const std::string& content)
    {
        Write(In("versão"), content);
        return NameInReleaseFile(In("versão"));
    }
};

} // namespace

TEST_F(ReleaseFile, GivesTheSystemsNameForPeople)
{
    EXPECT_EQ(NameIn("NAME=x\nPRETTY_NAME=\"Sistema 12 (fim)\"\n"), "Sistema 12 (fim)");
    EXPECT_EQ(NameIn("PRETTY_NAME=Sistema\n"), "Sistema");
}

TEST_F(ReleaseFile, LeavesTheNameToTheSystemWhereItGivesNone)
{
    EXPECT_EQ(NameIn("PRETTY_NAME=\"\"\n"), "Linux");
    EXPECT_EQ(NameInReleaseFile(In("nenhum")), "Linux");
}

} // namespace kova::system
