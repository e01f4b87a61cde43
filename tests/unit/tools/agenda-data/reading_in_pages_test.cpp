// How much of a database a program holds while it goes through it.

#include "tests/unit/tools/agenda-data/fetched_rows.hpp"
#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include "family/data/rows/page_size.hpp"
#include "family/data/sources/data_source.hpp"
#include "system/path_text.hpp"

#include <sstream>

namespace kova::data::test {

namespace {

constexpr const char* Registers[] = {"clientes",     "animais",  "tipos",       "servicos",
                                     "funcionarios", "feriados", "agendamentos"};
constexpr const char* LongOnes[] = {"clientes", "animais", "agendamentos"};

} // namespace

/// A shop with more customers, animals and appointments than one page holds.
class ReadingInPages : public ImportTest {
protected:
    ReadingInPages()
    {
        EXPECT_EQ(Run({"generate", Shop(), "--customers", "2100", "--appointments", "2600", "--date",
                       "20/11/2026"}),
                  0)
            << Error();
    }

    std::string Shop() { return Place("grande"); }

    static constexpr long long Page = family::PageSize;
};

TEST_F(ReadingInPages, ExportsEveryRow)
{
    for (const std::string name : LongOnes) {
        const FetchedRows fetched;
        ASSERT_EQ(Run({"export", Shop(), name, File(name + ".csv")}), 0) << Error();
        EXPECT_EQ(fetched.AtOnce(), Page) << name;
        EXPECT_GT(fetched.InAll(), 2 * Page) << name;
    }
    for (const std::string name : Registers) {
        if (!std::filesystem::exists(system::PathOf(File(name + ".csv")))) {
            ASSERT_EQ(Run({"export", Shop(), name, File(name + ".csv")}), 0) << Error();
        }
        ASSERT_EQ(Run({"import", Database(), name, File(name + ".csv")}), 0) << name << Error();
        EXPECT_TRUE(Exported(name, Shop()) == Exported(name)) << name;
    }
}

TEST_F(ReadingInPages, ChecksTheWholeDatabase)
{
    const FetchedRows fetched;
    EXPECT_EQ(Run({"check", Shop()}), 0) << Error();
    EXPECT_EQ(fetched.AtOnce(), Page);
    EXPECT_GT(fetched.InAll(), 6 * 2600);
}

TEST_F(ReadingInPages, TellsHowFarTheCheckOfALargeDatabaseIs)
{
    EXPECT_EQ(Run({"check", Database()}), 0);
    const auto write = [this](long long lines) {
        family::OpenDatabase(Database())->Session()
            << "insert into tentativa_de_entrada (identificador, erros, ultimo_erro)"
               " with recursive nome (numero) as (select 1 union all select numero + 1 from nome"
               " where numero < "
                + std::to_string(lines) + ") select '" + std::to_string(lines)
                + "a' || numero, 1, 1795185845 from nome";
    };
    long long rows = 0;
    std::istringstream counts(Output());
    for (std::string text; std::getline(counts, text) && !text.starts_with("vers");)
        rows += std::stoll(text.substr(text.find(':') + 1));
    write(50'000 - rows);
    EXPECT_EQ(Run({"check", Database()}), 0);
    EXPECT_EQ(Error().find("Verificação:"), std::string::npos) << Error();
    write(1);
    EXPECT_EQ(Run({"check", Database()}), 0);
    const std::size_t half = Error().find("Verificação: 50% ("), whole = Error().find("Verificação: 100% (");
    EXPECT_LT(half, whole) << Error();
    EXPECT_NE(whole, std::string::npos) << Error();
}

TEST_F(ReadingInPages, ChecksAFileThatIsAsLongAsTheDatabase)
{
    for (const std::string name : LongOnes) {
        ASSERT_EQ(Run({"export", Shop(), name, File(name + ".csv")}), 0) << Error();
        const FetchedRows fetched;
        EXPECT_EQ(Run({"import", Shop(), name, File(name + ".csv"), "--dry-run"}), 1);
        EXPECT_LE(fetched.AtOnce(), Page) << name;
        EXPECT_GT(fetched.InAll(), 2 * Page) << name;
    }
}

TEST_F(ReadingInPages, ImportsAShortFileWithoutReadingTheRest)
{
    const std::pair<const char*, const char*> files[] = {
        {"clientes", "Nome;Documento;Celular\nÍris Sá;;(11) 91234-5678\nRui Sá;529.982.247-25;\n"},
        {"animais", "Código do cliente;Nome;Sexo;Espécie;Porte\n7;Xuxu da Íris;F;Canina;Médio\n"},
        {"agendamentos",
         "Data inicial;Hora inicial;Hora final;Nome do cliente;Nome do animal;Código do serviço;"
         "Código do funcionário\n19/11/2026;03:00;04:00;Íris;Bidu;1;1\n"},
    };
    for (const auto& [name, content] : files) {
        kova::test::WriteFile(File("curto.csv"), content);
        const FetchedRows fetched;
        EXPECT_EQ(Run({"import", Shop(), name, File("curto.csv"), "--no-copy"}), 0) << name << Error();
        EXPECT_LT(fetched.InAll(), 700) << name;
    }
}

} // namespace kova::data::test
