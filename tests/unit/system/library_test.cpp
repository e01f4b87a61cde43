#include "system/library.hpp"
#include "system/program_path.hpp"
#include "tests/unit/system/folder_fixture.hpp"

namespace kova::system {

namespace {

class LibraryTest : public FolderTest {
protected:
    /// Why that file cannot be loaded; "loaded" where it can.
    static std::string ReasonAgainst(const std::string& path)
    {
        try {
            const Library library(path);
        } catch (const LibraryNotLoaded& failure) {
            return failure.what();
        }
        return "loaded";
    }
};

} // namespace

TEST_F(LibraryTest, IsLoadedFromAFolderWithAccents)
{
    const std::string file = In(LibraryFile("ração"));
    std::filesystem::copy_file(PathOf(TEST_LIBRARY), PathOf(file));
    const Library library(file);
    const auto answer = reinterpret_cast<int (*)()>(library.Find("Answer"));
    ASSERT_NE(answer, nullptr);
    EXPECT_EQ(answer(), 42);
}

TEST_F(LibraryTest, KnowsItsOwnFileWhereTheProgramKnowsItsOwn)
{
    const std::string file = In(LibraryFile("ração"));
    std::filesystem::copy_file(PathOf(TEST_LIBRARY), PathOf(file));
    const Library library(file);
    const auto ownFile = reinterpret_cast<const char* (*)()>(library.Find("OwnFile"));
    ASSERT_NE(ownFile, nullptr);
    EXPECT_EQ(ownFile(), TextOf(std::filesystem::canonical(PathOf(file))));
    EXPECT_EQ(OwnPath(), ProgramPath());
}

TEST_F(LibraryTest, FindsNothingUnderANameThatItDoesNotExport)
{
    EXPECT_EQ(Library(TEST_LIBRARY).Find("Question"), nullptr);
}

TEST_F(LibraryTest, SaysWhyItIsNotLoaded)
{
    EXPECT_NE(ReasonAgainst(In("nenhuma.so")), "loaded");
    EXPECT_NE(ReasonAgainst(In("nenhuma.so")), "");
    Write(In("texto.so"), "isto não é uma biblioteca\n");
    EXPECT_NE(ReasonAgainst(In("texto.so")), "loaded");
    EXPECT_NE(ReasonAgainst(In("texto.so")), "");
}

TEST_F(LibraryTest, IsToldByTheNameOfItsFile)
{
    EXPECT_EQ(LibraryNameIn(LibraryFile("KOVA_N_Familia")), "KOVA_N_Familia");
    EXPECT_EQ(TextOf(PathOf(TEST_LIBRARY).filename()), LibraryFile("test_system_library"));
    for (const std::string& file :
         {LibraryFile(""), LibraryFile("A") + ".bak", std::string("kovaris"), std::string()})
        EXPECT_EQ(LibraryNameIn(file), "") << file;
    EXPECT_NE(LibraryNameIn("x" + LibraryFile("A")), "A");
}

} // namespace kova::system
