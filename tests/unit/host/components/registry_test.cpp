#include "host/components/component_error.hpp"
#include "host/components/registry.hpp"
#include "tests/unit/host/components/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kova::host {

using test::ContentOf;
using test::WriteFile;

namespace {

constexpr const char* FirstId = "{11111111-2222-4333-8444-555555555501}";
constexpr const char* SecondId = "{11111111-2222-4333-8444-5555555555AB}";

class RegistryTest : public testing::Test {
protected:
    void Fill(const std::string& content) { WriteFile(registry.Path(), content); }
    std::string Content() const { return ContentOf(registry.Path()); }

    test::TemporaryFolder folder;
    Registry registry{folder.File("registro.txt")};
};

std::string Line(const std::string& name, const std::string& id, const std::string& path)
{
    return name + "\t" + id + "\t" + path + "\n";
}

} // namespace

TEST_F(RegistryTest, IsEmptyWithoutAFile)
{
    EXPECT_TRUE(registry.Load().classes.empty());
    EXPECT_FALSE(registry.Find("A.clsA"));
}

TEST_F(RegistryTest, FindsAClassByItsExactName)
{
    Fill("# componentes\n\n" + Line("A.clsA", FirstId, "/lib/a.so")
         + Line("A.clsB", SecondId, "/lib/ação.so"));
    const auto found = registry.Find("A.clsB");
    ASSERT_TRUE(found);
    EXPECT_EQ(found->classId, SecondId);
    EXPECT_EQ(found->libraryPath, folder.OnItsDisk("/lib/ação.so"));
    EXPECT_FALSE(registry.Find("a.clsb"));
    EXPECT_FALSE(registry.Find("A.cls"));
    EXPECT_TRUE(registry.Load().problems.empty());
}

TEST_F(RegistryTest, ReadsLinesWithCarriageReturnsAndWithoutALastLineEnd)
{
    Fill(std::string("A.clsA\t") + FirstId + "\t/lib/a.so\r\nA.clsB\t" + SecondId + "\t/lib/b.so");
    EXPECT_EQ(registry.Find("A.clsA")->libraryPath, folder.OnItsDisk("/lib/a.so"));
    EXPECT_EQ(registry.Find("A.clsB")->libraryPath, folder.OnItsDisk("/lib/b.so"));
}

TEST_F(RegistryTest, CountsARelativePathFromItsOwnFolder)
{
    Fill(Line("A.clsA", FirstId, "../lib/a.so"));
    const auto expected = system::TextOf(system::PathOf(folder.File("../lib/a.so")).lexically_normal());
    EXPECT_EQ(registry.Find("A.clsA")->libraryPath, expected);
}

TEST_F(RegistryTest, ReadsAnIdentifierOfHexadecimalDigitsAlone)
{
    const std::string all = "{01234567-89ab-cdef-ABCD-EF0123456789}";
    Fill(Line("A.clsA", all, "/lib/a.so"));
    EXPECT_EQ(registry.Find("A.clsA")->classId, all);
    for (const char beside : {'/', ':', '@', 'G', '`', 'g', 'x', '-'}) {
        std::string other = all;
        other[1] = beside;
        Fill(Line("A.clsA", other, "/lib/a.so"));
        EXPECT_FALSE(registry.Find("A.clsA")) << other;
    }
    Fill(Line("A.clsA", "{01234567+89ab-cdef-ABCD-EF0123456789}", "/lib/a.so"));
    EXPECT_FALSE(registry.Find("A.clsA"));
}

TEST_F(RegistryTest, ReadsAPathWithABlank)
{
    Fill(Line("A.clsA", FirstId, "/casa/ana maria/a.so"));
    EXPECT_EQ(registry.Find("A.clsA")->libraryPath, folder.OnItsDisk("/casa/ana maria/a.so"));
}

TEST_F(RegistryTest, ReportsACorruptLineAndKeepsTheOthers)
{
    const std::string corrupt[] = {
        "só um texto",
        std::string("A.clsX\t") + FirstId,
        "A.clsX\t{123}\t/lib/x.so",
        std::string("\t") + FirstId + "\t/lib/x.so",
        std::string("A.clsX\t") + FirstId + "\t",
        std::string("A.clsX\t") + FirstId + "\t/lib/\xFF.so",
        std::string("A.clsX\t") + FirstId + "\t/lib/x.so\tmais",
    };
    for (const std::string& line : corrupt) {
        SCOPED_TRACE(line);
        Fill(Line("A.clsA", FirstId, "/lib/a.so") + line + "\n" + Line("A.clsB", SecondId, "/lib/b.so"));
        const auto contents = registry.Load();
        EXPECT_EQ(contents.classes.size(), 2U);
        ASSERT_EQ(contents.problems.size(), 1U);
        EXPECT_EQ(contents.problems[0].line, 2);
        EXPECT_EQ(contents.problems[0].text, line);
        EXPECT_NE(
            contents.problems[0].message.find("A linha 2 do arquivo de registro '" + registry.Path() + "'"),
            std::string::npos);
        EXPECT_NE(contents.problems[0].message.find("Corrija ou apague"), std::string::npos);
    }
}

TEST_F(RegistryTest, AddsAClassAtTheEndAndMakesTheFolder)
{
    Registry deep(folder.File("um/dois/registro.txt"));
    deep.Write({"A.clsA", FirstId, "/lib/a.so"});
    deep.Write({"A.clsB", SecondId, "/lib/b.so"});
    EXPECT_EQ(ContentOf(deep.Path()),
              Line("A.clsA", FirstId, "/lib/a.so") + Line("A.clsB", SecondId, "/lib/b.so"));
}

TEST_F(RegistryTest, ReplacesAClassInItsPlaceAndKeepsAllOtherLines)
{
    const std::string before = "# cabeçalho\n\nlinha que ninguém entende \xFF\n";
    const std::string after = "  # fim\nA.clsC\tsem identificador\r\n";
    Fill(before + Line("A.clsA", FirstId, "/lib/velha.so") + Line("A.clsA", FirstId, "/lib/dobro.so") + after
         + Line("A.clsA", FirstId, "/lib/outra.so"));
    registry.Write({"A.clsA", SecondId, "/lib/nova.so"});
    EXPECT_EQ(Content(), before + Line("A.clsA", SecondId, "/lib/nova.so") + after);
}

TEST_F(RegistryTest, RemovesEveryLineOfAClassAndNothingElse)
{
    Fill(Line("A.clsA", FirstId, "/lib/a.so") + "corrompida\n" + Line("A.clsB", SecondId, "/lib/b.so")
         + Line("A.clsA", FirstId, "/lib/a2.so"));
    registry.Remove("A.clsA");
    EXPECT_EQ(Content(), "corrompida\n" + Line("A.clsB", SecondId, "/lib/b.so"));
}

TEST_F(RegistryTest, LeavesTheFileAloneWhereThereIsNothingToRemove)
{
    Fill("# sem quebra no fim");
    registry.Remove("A.clsA");
    EXPECT_EQ(Content(), "# sem quebra no fim");
}

TEST_F(RegistryTest, RefusesARegistrationThatMakesNoReadableLine)
{
    Fill("# nada\n");
    EXPECT_THROW(registry.Write({"", FirstId, "/a.so"}), ComponentError);
    EXPECT_THROW(registry.Write({"#A", FirstId, "/a.so"}), ComponentError);
    EXPECT_THROW(registry.Write({"A.clsA", "123", "/a.so"}), ComponentError);
    EXPECT_THROW(registry.Write({"A.clsA", FirstId, ""}), ComponentError);
    EXPECT_THROW(registry.Write({"A.clsA", FirstId, "/a\nb.so"}), ComponentError);
    EXPECT_THROW(registry.Write({"A.cls\tA", FirstId, "/a.so"}), ComponentError);
    EXPECT_EQ(Content(), "# nada\n");
}

TEST_F(RegistryTest, SaysWhichFileCannotBeReadOrWritten)
{
    std::filesystem::create_directory(system::PathOf(registry.Path()));
    try {
        registry.Write({"A.clsA", FirstId, "/a.so"});
        FAIL() << "a folder was taken for a file";
    } catch (const ComponentError& error) {
        EXPECT_NE(std::string(error.what()).find(registry.Path()), std::string::npos);
    }
    EXPECT_THROW(registry.Load(), ComponentError);
    WriteFile(folder.File("arquivo"), "");
    Registry insideFile(folder.File("arquivo/registro.txt"));
    EXPECT_THROW(insideFile.Write({"A.clsA", FirstId, "/a.so"}), ComponentError);
}

} // namespace kova::host
