#include "system/path_text.hpp"
#include "tests/support/own_file.hpp"
#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include <filesystem>

namespace kova::data::test {

namespace {

namespace fs = std::filesystem;

class DataOfAPerson : public ImportTest {
protected:
    DataOfAPerson()
    {
        ImportShop();
        fs::create_directory(system::PathOf(folder_));
    }

    int Tell(const std::string& customer, const std::string& folder)
    {
        return Run({"person", Database(), "--customer", customer, "--to", folder});
    }
    bool Said(const std::string& words) const { return Output().find(words) != std::string::npos; }
    bool Complained(const std::string& words) const { return Error().find(words) != std::string::npos; }

    const std::string folder_ = File("pessoa");
};

} // namespace

TEST_F(DataOfAPerson, AreWrittenIntoTwoFilesOfAFolder)
{
    EXPECT_EQ(Tell("10", folder_), 0) << Error();
    EXPECT_TRUE(Said("Página: " + File("pessoa/cliente-10.html") + "\n")) << Output();
    EXPECT_TRUE(Said("JSON: " + File("pessoa/cliente-10.json") + "\n")) << Output();
    for (const char* name : {"/cliente-10.html", "/cliente-10.json"})
        EXPECT_TRUE(kova::test::IsForItsOwnerAlone(folder_ + name));
    EXPECT_EQ(Tell("10", folder_), 1);
    EXPECT_TRUE(Complained("já existe")) << Error();
    EXPECT_EQ(Tell("11", folder_), 0) << Error();
}

TEST_F(DataOfAPerson, AreNotWrittenForACommandLineThatIsWrong)
{
    for (const std::vector<std::string>& words :
         std::vector<std::vector<std::string>>{{"person", Database()},
                                               {"person", Database(), "--customer", "10"},
                                               {"person", Database(), "--to", folder_},
                                               {"person", Database(), "--customer", "x", "--to", folder_},
                                               {"person", Database(), "--customer", "0", "--to", folder_},
                                               {"person", "--customer", "10", "--to", folder_}}) {
        EXPECT_EQ(Run(words), 2);
        EXPECT_TRUE(Complained(" --help")) << Error();
    }
    EXPECT_EQ(Tell("99", folder_), 1);
    EXPECT_TRUE(Complained("Não há cliente com o código 99.")) << Error();
    EXPECT_EQ(Tell("10", File("nenhuma")), 1);
    EXPECT_TRUE(Complained("não existe")) << Error();
    EXPECT_TRUE(fs::is_empty(system::PathOf(folder_)));
}

} // namespace kova::data::test
