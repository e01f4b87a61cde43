// The copy that is made before a file of records goes into the database.

#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include "family/data/sources/data_source.hpp"
#include "system/path_text.hpp"

#include <algorithm>
#include <filesystem>

namespace kova::data::test {

namespace fs = std::filesystem;

class CopyBeforeImport : public ImportTest {
protected:
    /// The first copy of the moment at which the program runs.
    std::string Copy() const { return Database() + ".antes-da-importacao-2026-11-20-090000.bak"; }
};

TEST_F(CopyBeforeImport, HoldsWhatWasThereAndItsPlaceIsTold)
{
    ASSERT_EQ(Import("tipos", "Nome\nHotel\n"), 0) << Error();
    const std::string told = "Cópia de antes da importação: " + Copy() + "\n";
    if (kova::test::TestsRunOnServer()) {
        EXPECT_EQ(Output().find("Cópia"), std::string::npos) << Output();
        return;
    }
    EXPECT_NE(Output().find("1 linha importada.\n" + told), std::string::npos) << Output();
    long long types = -1;
    family::OpenForReading(Copy())->Session() << "select count(*) from tipo_de_servico", soci::into(types);
    EXPECT_EQ(types, 0);
}

TEST_F(CopyBeforeImport, IsNotMadeWhereNothingIsWritten)
{
    ASSERT_EQ(Import("tipos", "Nome\nHotel\n", {"--dry-run"}), 0) << Error();
    ASSERT_EQ(Import("tipos", "Nome;Situação\nHotel;x\n"), 1);
    ASSERT_EQ(Import("tipos", "Nome\n"), 0) << Error();
    EXPECT_FALSE(fs::exists(system::PathOf(Copy())));
    EXPECT_EQ(Output().find("Cópia"), std::string::npos) << Output();
}

TEST_F(CopyBeforeImport, IsLeftOutWhereThatIsAskedFor)
{
    ASSERT_EQ(Import("tipos", "Nome\nHotel\n", {"--no-copy"}), 0) << Error();
    EXPECT_EQ(Output().find("Cópia"), std::string::npos) << Output();
    EXPECT_FALSE(fs::exists(system::PathOf(Copy())));
    EXPECT_EQ(Ask("select nome from tipo_de_servico"), "Hotel");
}

TEST_F(CopyBeforeImport, OfAnImportThatLeavesEverythingAsItIsIsNotMadeAndNothingIsNoted)
{
    ImportShop();
    const std::string lines = Ask("select count(*) from auditoria");
    const auto copies = [this] {
        return std::ranges::count_if(
            fs::directory_iterator(system::PathOf(File(""))), [](const fs::directory_entry& entry) {
                return system::TextOf(entry.path().filename()).find(".antes-da-importacao-")
                    != std::string::npos;
            });
    };
    const auto before = copies();
    ASSERT_EQ(Import("tipos", "Número;Nome\n1;Consulta\n", {"--update"}), 0) << Error();
    EXPECT_EQ(Output(), "Arquivo lido em UTF-8.\n0 linhas importadas; 0 registros alterados.\n");
    ASSERT_EQ(Import("tipos", "Número;Nome\n1;Consulta\n", {"--skip-existing"}), 0) << Error();
    EXPECT_EQ(Output(), "Arquivo lido em UTF-8.\n0 linhas importadas; 1 linha já estava no banco.\n");
    EXPECT_EQ(copies(), before);
    EXPECT_EQ(Ask("select count(*) from auditoria"), lines);
}

} // namespace kova::data::test
