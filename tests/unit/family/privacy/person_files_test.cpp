#include "tests/support/own_file.hpp"
#include "tests/unit/family/privacy/privacy_fixture.hpp"
#include "tests/unit/family/server_fixture.hpp"

#include "family/privacy/person_files.hpp"
#include "system/path_text.hpp"
#include "tests/support/small_files.hpp"

#include <filesystem>

namespace kova::family::test {

namespace fs = std::filesystem;

class PersonFilesOfAShop : public PrivacyTest {
protected:
    privacy::PersonFiles Export(Key code = 10)
    {
        return privacy::ExportPerson(host_.DataSource(), code, system::TextOf(to_.Path()), ana_, now_, {});
    }
    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const fs::directory_entry& entry : fs::directory_iterator(to_.Path()))
            names.push_back(system::TextOf(entry.path().filename()));
        std::sort(names.begin(), names.end());
        return names;
    }

    TemporaryFolder to_;
};

TEST_F(PersonFilesOfAShop, AreReadByTheirOwnerAlone)
{
    const privacy::PersonFiles files = Export();
    EXPECT_EQ(files.page, to_ / "cliente-10.html");
    EXPECT_EQ(files.json, to_ / "cliente-10.json");
    EXPECT_EQ(Names(), (std::vector<std::string>{"cliente-10.html", "cliente-10.json"}));
    for (const std::string& file : {files.page, files.json})
        EXPECT_TRUE(kova::test::IsForItsOwnerAlone(file)) << file;
    EXPECT_NE(ContentOf(files.page).find("zq cliente documento"), std::string::npos);
    EXPECT_NE(ContentOf(files.json).find("zq cliente documento"), std::string::npos);
}

TEST_F(PersonFilesOfAShop, NeverReplaceAFile)
{
    for (const char* name : {"cliente-10.html", "cliente-10.json"}) {
        WriteContent(to_ / name, "nota");
        EXPECT_NE(FailureOf([&] { Export(); }).find("já existe"), std::string::npos);
        EXPECT_EQ(ContentOf(to_ / name), "nota");
        EXPECT_EQ(Names(), std::vector<std::string>{name});
        fs::remove(system::PathOf(to_ / name));
    }
}

TEST_F(PersonFilesOfAShop, AreThereBothOrNotAtAll)
{
    EXPECT_NE(FailureOf([&] { Export(99); }).find("Não há cliente com o código 99."), std::string::npos);
    EXPECT_EQ(Names(), std::vector<std::string>{});
    {
        const kova::test::SmallFiles full(100);
        EXPECT_NE(FailureOf([&] { Export(); }), "");
    }
    EXPECT_EQ(Names(), std::vector<std::string>{});
}

TEST_F(PersonFilesOfAShop, WantAFolderThatIsThere)
{
    EXPECT_NE(FailureOf([&] {
                  privacy::ExportPerson(host_.DataSource(), 10, to_ / "nenhuma", ana_, now_, {});
              }).find("não existe"),
              std::string::npos);
}

TEST_F(PersonFilesOfAShop, AreNotMadeWhereTheWorkIsStopped)
{
    std::stop_source stop;
    stop.request_stop();
    LongWork work;
    work.stop = stop.get_token();
    Change(2, 2);
    ASSERT_EQ(Count("auditoria"), 1) << "before the first line is read";
    EXPECT_NE(FailureOf([&] {
                  privacy::ExportPerson(host_.DataSource(), 10, system::TextOf(to_.Path()), ana_, now_, work);
              }).find("interrompido"),
              std::string::npos);
    EXPECT_EQ(Names(), std::vector<std::string>{});
}

} // namespace kova::family::test
