#include "system/flush.hpp"
#include "tests/unit/system/folder_fixture.hpp"

namespace kova::system {

namespace {

using FlushTest = FolderTest;

}

TEST_F(FlushTest, LeavesTheFileAsItIs)
{
    Write(In("ração"), "conteúdo");
    FlushFile(In("ração"));
    FlushFolder(In(""));
    FlushFolder("");
    ForgetContent(In("ração"));
    EXPECT_EQ(ContentOf(In("ração")), "conteúdo");
}

TEST_F(FlushTest, SaysThatThereIsNoSuchFile)
{
    try {
        FlushFile(In("nenhum"));
        FAIL() << "a file that is not there was flushed";
    } catch (const std::filesystem::filesystem_error& error) {
        EXPECT_EQ(error.code(), std::errc::no_such_file_or_directory);
        EXPECT_EQ(TextOf(error.path1()), In("nenhum"));
    }
    ForgetContent(In("nenhum"));
    EXPECT_FALSE(IsThere(In("nenhum")));
}

} // namespace kova::system
