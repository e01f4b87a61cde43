// What belongs to a customer or an animal, as it is looked at beside the form.

#include "tests/unit/family/registers/register_fixture.hpp"

#include "family/registers/customers/related_lists.hpp"

namespace kova::family::test {

using namespace registers;

class RelatedLists : public RegisterTest {
protected:
    /// The cells of the rows, joined by "|"; "-" before one that is over.
    std::vector<std::string> Rows(const RelatedList& list, Key of, Key choice = 0)
    {
        std::vector<std::string> lines;
        for (const ListRow& row : list.Rows(Data(), list.Find(Data(), of, choice))) {
            std::string line = row.active ? "" : "-";
            for (const std::string& cell : row.cells)
                line += (line.size() < 2 ? "" : "|") + cell;
            EXPECT_EQ(row.cells.size(), list.ListColumns().size());
            lines.push_back(line);
        }
        return lines;
    }
};

using Lines = std::vector<std::string>;

TEST_F(RelatedLists, TellACustomersAppointmentsNewestFirst)
{
    EXPECT_EQ(Rows(CustomerAppointments(), 10),
              (Lines{"27/11/2026|11:00|Paçoca|Banho|Bia|Agendado|60,00",
                     "27/11/2026|10:00|Paçoca|Banho|Bia|Agendado|60,00",
                     "27/11/2026|09:00|Paçoca|Banho|Bia|Agendado|60,00",
                     "20/11/2026|09:30|Paçoca|Banho|Bia|Agendado|60,00",
                     "20/11/2026|09:00|Paçoca|Consulta clínica|Zeca|Agendado|150,00"}));
    EXPECT_EQ(Rows(CustomerAppointments(), 99), Lines{});
}

TEST_F(RelatedLists, TellWhatAPreSaleWasWorthThen)
{
    ASSERT_EQ(DeskTest::Change(2, 4), 0);
    Run("update servico set preco_em_centavos = 9900 where codigo = 2");
    EXPECT_EQ(Rows(CustomerAppointments(), 10)[3],
              "20/11/2026|09:30|Paçoca|Banho|Bia|Atendido e gerado pré-venda|60,00");
    ASSERT_EQ(DeskTest::Change(2, 3), 0);
    EXPECT_EQ(Rows(CustomerAppointments(), 10)[3], "-20/11/2026|09:30|Paçoca|Banho|Bia|Cancelado|99,00");
}

TEST_F(RelatedLists, AreNarrowedToOneAnimal)
{
    Run("update animal set codigo_do_cliente = 10 where codigo = 51");
    Run("update agendamento set codigo_do_cliente = 10 where numero = 9");
    std::string choices;
    for (const RelatedChoice& one : CustomerAppointments().Choices(Data(), 10))
        choices += std::to_string(one.key) + " " + one.shown + ";";
    EXPECT_EQ(choices, "51 Leão;50 Paçoca;");
    EXPECT_EQ(Rows(CustomerAppointments(), 10).size(), 6U);
    EXPECT_EQ(Rows(CustomerAppointments(), 10, 51), Lines{"21/11/2026|09:00|Leão|Banho|Bia|Agendado|60,00"});
}

TEST_F(RelatedLists, TellAnAnimalsAppointmentsWithoutItsName)
{
    EXPECT_EQ(Rows(AnimalAppointments(), 50).front(), "27/11/2026|11:00|Banho|Bia|Agendado|60,00");
    EXPECT_EQ(Rows(AnimalAppointments(), 50).size(), 5U);
}

TEST_F(RelatedLists, CountWhatAPackageStillHas)
{
    EXPECT_EQ(Rows(CustomerPackages(), 10), Lines{"Banho|01/11/2026|3|0|3|0|3"})
        << "the service has no number of sessions: what is booked counts";
    Run("update servico set quantidade_de_sessoes = 4 where codigo = 2");
    ASSERT_EQ(DeskTest::Change(21, 2), 0);
    ASSERT_EQ(DeskTest::Change(22, 3), 0);
    EXPECT_EQ(Rows(CustomerPackages(), 10), Lines{"Banho|01/11/2026|4|1|1|2|3"});
    Run("update agendamento set situacao = 2 where numero in (22, 23)");
    EXPECT_EQ(Rows(CustomerPackages(), 10), Lines{"Banho|01/11/2026|4|3|0|1|1"});
    Run("update servico set quantidade_de_sessoes = 2 where codigo = 2");
    EXPECT_EQ(Rows(CustomerPackages(), 10), Lines{"-Banho|01/11/2026|3|3|0|0|0"})
        << "more were booked than it has today";
    EXPECT_EQ(Rows(CustomerPackages(), 11), Lines{});
}

TEST_F(RelatedLists, ReadAnyNumberOfRowsInTheOrderOfTheirKeys)
{
    std::vector<Key> keys;
    for (int again = 0; again < 30; ++again) {
        for (const Key number : {9, 999, 2, 21, 1, 8})
            keys.push_back(number);
    }
    std::vector<Key> found;
    for (const ListRow& row : CustomerAppointments().Rows(Data(), keys))
        found.push_back(row.key);
    std::erase(keys, 999);
    EXPECT_EQ(found, keys);
}

} // namespace kova::family::test
