// How much of a database a program holds while it goes through it.

#include "tests/unit/tools/agenda-data/fetched_rows.hpp"
#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include "family/data/rows/page_size.hpp"
#include "family/data/sources/data_source.hpp"

namespace kova::data::test {

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
    EXPECT_EQ(Error(), "");
    family::OpenDatabase(Database())->Session()
        << "insert into auditoria (momento, usuario, tabela, chave, operacao)"
           " with recursive linha (numero) as"
           " (select 1 union all select numero + 1 from linha where numero < 50001)"
           " select '2026-11-20 09:00:00', '7 - Lia', 'cliente', numero, 'inclusao' from linha";
    EXPECT_EQ(Run({"check", Database()}), 0);
    const std::size_t half = Error().find("Verificação: 50% ("), whole = Error().find("Verificação: 100% (");
    EXPECT_LT(half, whole) << Error();
    EXPECT_NE(whole, std::string::npos) << Error();
}

} // namespace kova::data::test
