#include "host/components/profile_file.hpp"
#include "system/path_text.hpp"
#include "tests/unit/host/components/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kova::host {

using test::ContentOf;
using test::WriteFile;

namespace {

class ProfileFileTest : public testing::Test {
protected:
    Text ReadFrom(const std::string& content, const Text& section, const Text& key, Integer size = 256)
    {
        WriteFile(path, content);
        return profile.Read(section, key, "ausente", size, path);
    }
    std::string Written(const std::string& before, const Text& section, const Text& key, const Text& value)
    {
        WriteFile(path, before);
        EXPECT_TRUE(profile.Write(section, key, value, path));
        return ContentOf(path);
    }

    test::TemporaryFolder folder;
    std::string path = folder.File("ajustes.ini");
    ProfileFile profile;
};

} // namespace

TEST_F(ProfileFileTest, ReadsByRule)
{
    struct Case {
        const char* content;
        const char* section;
        const char* key;
        const char* value;
    };
    const Case cases[] = {
        {"[S]\r\nk=1\r\n", "S", "k", "1"},
        {"[S]\nk=1", "S", "k", "1"},
        {"[S]\rk=1\rj=2", "S", "j", "2"},
        {"[Exibir]\nChave=Valor\n", "EXIBIR", "cHAVE", "Valor"},
        {"[Az]\nKz=1\n", "aZ", "kZ", "1"},
        {" \t[ \vS\t ] resto\n \tk\v = \t um dois \v\n", "S", "k", "um dois"},
        {"[S]\nk=1\n", "  S ", " k ", "1"},
        {"[S]\nk=1\n", "S\t", "k", "ausente"},
        {"[S]\nk=1\n", "S", "\tk", "ausente"},
        {"[S]\nk=\" a \"\n", "S", "k", " a "},
        {"[S]\nk=' a '\n", "S", "k", " a "},
        {"[S]\nk=\"\"a\"\"\n", "S", "k", "\"a\""},
        {"[S]\nk=\"a'\n", "S", "k", "\"a'"},
        {"[S]\nk=\"\n", "S", "k", "\""},
        {"[S]\nk=\"\"\n", "S", "k", ""},
        {"[S]x]\nk=1\n", "S", "k", "1"},
        {"[S\nk=1\n", "S", "k", "1"},
        {"S]\nk=1\n", "S", "k", "ausente"},
        {"[S]\n;k=1\n  ;k=2\nk=3;4\n", "S", "k", "3;4"},
        {"[S]\n;k=1\n", "S", ";k", "ausente"},
        {"[S]\n#k=1\n", "S", "#k", "1"},
        {"[S]\nk=1\nk=2\n", "S", "k", "1"},
        {"[S]\na=1\n[s]\nk=2\n", "S", "k", "ausente"},
        {"[S]\nk\n", "S", "k", "ausente"},
        {"[S]\nk=\n", "S", "k", ""},
        {"[S]\nk=a=b\n", "S", "k", "a=b"},
        {"[S]\n[T]\nk=1\n", "S", "k", "ausente"},
        {"[S]\n[k=1]\n", "S", "[k", "ausente"},
        {"k=1\n[S]\n", "S", "k", "ausente"},
        {"", "S", "k", "ausente"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.content);
        EXPECT_EQ(ReadFrom(each.content, each.section, each.key), each.value);
    }
}

TEST_F(ProfileFileTest, ReadsTheDefaultWithoutItsTrailingBlanks)
{
    EXPECT_EQ(profile.Read("S", "k", "  nada\t  ", 256, path), "  nada\t");
    EXPECT_EQ(profile.Read("S", "k", "", 256, path), "");
    EXPECT_EQ(profile.Read("S", "k", "nada", 256, folder.File("sem/pasta.ini")), "nada");
    EXPECT_EQ(profile.Read("S", "k", "nada", 3, path), "na");
}

TEST_F(ProfileFileTest, CutsAValueToOneCharacterLessThanTheSize)
{
    EXPECT_EQ(ReadFrom("[S]\nk=" + std::string(300, 'x'), "S", "k"), std::string(255, 'x'));
    EXPECT_EQ(ReadFrom("[S]\nk=ação\n", "S", "k", 4), "açã");
    EXPECT_EQ(ReadFrom("[S]\nk=1\n", "S", "k", 1), "");
    EXPECT_EQ(ReadFrom("[S]\nk=1\n", "S", "k", 0), "");
    EXPECT_EQ(ReadFrom("[S]\nk=1\n", "S", "k", -1), "");
}

TEST_F(ProfileFileTest, MakesTheFileWhereItIsMissing)
{
    EXPECT_TRUE(profile.Write("ExibirPainel", "CheckBoxExibirPainel", "1", path));
    EXPECT_EQ(ContentOf(path), "[ExibirPainel]\r\nCheckBoxExibirPainel=1\r\n");
    EXPECT_EQ(profile.Read("exibirpainel", "checkboxexibirpainel", "ausente", 256, path), "1");
}

TEST_F(ProfileFileTest, WritesByRule)
{
    struct Case {
        const char* before;
        const char* section;
        const char* key;
        const char* after;
    };
    const Case cases[] = {
        {"[S]\r\nk=1\r\n", "S", "k", "[S]\r\nk=novo\r\n"},
        {"[Sec]\r\n Chave = 1\r\nj=2\r\n", "SEC", "CHAVE", "[Sec]\r\nChave=novo\r\nj=2\r\n"},
        {"[S]\nk=1\nj=2", "S", "k", "[S]\nk=novo\r\nj=2"},
        {"[S]\r\nj=2\r\n; fim\r\n\r\n[T]\r\n", "S", "k", "[S]\r\nj=2\r\nk=novo\r\n; fim\r\n\r\n[T]\r\n"},
        {"[S]\r\n; só comentário\r\n", "S", "k", "[S]\r\nk=novo\r\n; só comentário\r\n"},
        {"[S]\r\nj=2", "S", "k", "[S]\r\nj=2\r\nk=novo\r\n"},
        {"[S]", "S", "k", "[S]\r\nk=novo\r\n"},
        {"[T]\r\nk=1", "S", "k", "[T]\r\nk=1\r\n[S]\r\nk=novo\r\n"},
        {"[T]\r\nk=1\r\n", "S", "k", "[T]\r\nk=1\r\n[S]\r\nk=novo\r\n"},
        {"antes\n\n; x\xFF\n[S]\nk=1\nk=2\nlixo\n", "S", "k", "antes\n\n; x\xFF\n[S]\nk=novo\r\nk=2\nlixo\n"},
        {"[S]\na=1\n[S]\nk=2\n", "S", "k", "[S]\na=1\nk=novo\r\n[S]\nk=2\n"},
        {"", " S ", " k ", "[S]\r\nk=novo\r\n"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.before);
        EXPECT_EQ(Written(each.before, each.section, each.key, "novo"), each.after);
    }
}

TEST_F(ProfileFileTest, WritesAValueAsItIsGiven)
{
    EXPECT_EQ(Written("", "S", "k", " \"a;b\" "), "[S]\r\nk= \"a;b\" \r\n");
    EXPECT_EQ(profile.Read("S", "k", "", 256, path), "a;b");
    EXPECT_EQ(Written("", "S", "k", ""), "[S]\r\nk=\r\n");
}

TEST_F(ProfileFileTest, RefusesWhatOneLineCannotHold)
{
    WriteFile(path, "[S]\r\nk=1\r\n");
    EXPECT_FALSE(profile.Write("S", "k", "a\r\n[T]", path));
    EXPECT_FALSE(profile.Write("S", "k\n", "a", path));
    EXPECT_FALSE(profile.Write("S\r", "k", "a", path));
    EXPECT_FALSE(profile.Write("S", "k", Text("a\0b", 3), path));
    EXPECT_EQ(ContentOf(path), "[S]\r\nk=1\r\n");
}

TEST_F(ProfileFileTest, AnswersFalseWhereTheFileCannotBeWritten)
{
    EXPECT_FALSE(profile.Write("S", "k", "1", folder.File("sem/pasta.ini")));
    std::filesystem::create_directory(system::PathOf(path));
    EXPECT_FALSE(profile.Write("S", "k", "1", path));
    EXPECT_TRUE(std::filesystem::is_directory(system::PathOf(path)));
}

TEST_F(ProfileFileTest, LeavesNoOtherFileBehind)
{
    profile.Write("S", "k", "1", path);
    profile.Write("S", "k", "2", path);
    const std::filesystem::directory_iterator files(system::PathOf(path).parent_path());
    EXPECT_EQ(std::distance(begin(files), end(files)), 1);
}

} // namespace kova::host
