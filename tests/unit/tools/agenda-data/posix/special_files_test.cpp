// Files that are no plain ones, where the system has them.

#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include <filesystem>

namespace kova::data::test {

using SpecialFiles = ImportTest;

TEST_F(SpecialFiles, AreNotImported)
{
    const auto importing = [&](const std::string& path) {
        return Run({"import", Database(), "tipos", path});
    };
    EXPECT_EQ(importing("/dev/null"), 1);
    EXPECT_NE(Error().find("não é um arquivo comum"), std::string::npos);
    EXPECT_EQ(importing("/proc/self/mem"), 1) << "it opens, and its first byte cannot be read";
    EXPECT_NE(Error().find("não pode ser lido"), std::string::npos) << Error();
}

TEST_F(SpecialFiles, AreNotReplacedByAnExport)
{
    std::filesystem::create_symlink("longe", File("elo.csv"));
    EXPECT_EQ(Run({"export", Database(), "tipos", File("elo.csv")}), 1);
    EXPECT_NE(Error().find("já existe"), std::string::npos);
}

} // namespace kova::data::test
