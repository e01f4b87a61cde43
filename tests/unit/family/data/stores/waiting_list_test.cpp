// Who waits, as it is kept.

#include "tests/unit/family/business/appointments/desk_fixture.hpp"

#include "family/data/audit/audit_lines.hpp"
#include "family/data/sources/shared_database.hpp"
#include "family/data/stores/waiting_list.hpp"

namespace kova::family::test {

class WaitingList : public DeskTest {
protected:
    Database& Data() { return *SharedDatabase(host_.DataSource()); }

    static WaitingEntry Entry()
    {
        WaitingEntry entry;
        entry.row.codigoDoCliente = 10;
        entry.row.codigoDoAnimal = 50;
        entry.row.dataInicial = "2026-12-01";
        entry.row.dataFinal = "2026-12-31";
        entry.row.diasDaSemana = "246";
        entry.row.horaInicial = "08:00";
        entry.row.horaFinal = "12:00";
        entry.row.observacao = std::string("Só de manhã");
        entry.services = {1, 2};
        return entry;
    }
    Author At(const std::string& moment) const { return {"7", "Lia", moment, "BALCAO-1"}; }
    std::vector<Key> OpenOn(const std::string& day)
    {
        std::vector<Key> codes;
        for (const WaitingEntry& entry : FindOpenWaiting(Data(), day))
            codes.push_back(entry.row.codigo);
        return codes;
    }
};

TEST_F(WaitingList, KeepsWhoWaitsForWhatAndWhoWroteIt)
{
    const Key code = AddWaiting(Data(), Entry(), At("2026-11-20 09:00:00"));
    const WaitingEntry found = FindWaiting(Data(), code).value();
    EXPECT_EQ(found.services, (std::set<Key>{1, 2}));
    EXPECT_EQ(found.employees, std::set<Key>());
    EXPECT_EQ(found.row.incluidoPor, "Lia");
    EXPECT_EQ(found.row.observacao.value, "Só de manhã");
    EXPECT_EQ(found.row.versao, 1);
    EXPECT_TRUE(found.row.alteradoEm.IsNull());
    EXPECT_FALSE(FindWaiting(Data(), code + 1));
    EXPECT_EQ(Texts("select tabela || ' ' || operacao from auditoria order by codigo"),
              (std::vector<std::string>{"lista_de_espera inclusao", "espera_servico inclusao",
                                        "espera_servico inclusao"}));
}

TEST_F(WaitingList, ChangesWhatDiffersAlone)
{
    const Key code = AddWaiting(Data(), Entry(), At("2026-11-20 09:00:00"));
    const WaitingEntry before = FindWaiting(Data(), code).value();
    WaitingEntry after = before;
    after.row.horaFinal = "18:00";
    after.services = {2};
    after.employees = {1};
    Run("delete from auditoria");
    const WaitingRow written = ReplaceWaiting(Data(), before, after, At("2026-11-21 10:00:00"));
    const WaitingEntry found = FindWaiting(Data(), code).value();
    EXPECT_EQ(found.services, std::set<Key>{2});
    EXPECT_EQ(found.employees, std::set<Key>{1});
    EXPECT_EQ(found.row.versao, 2);
    EXPECT_EQ(written.versao, 2);
    EXPECT_EQ(found.row.alteradoPor.ValueOr("-"), "Lia");
    EXPECT_EQ(found.row.incluidoEm, before.row.incluidoEm);
    EXPECT_EQ(
        Texts("select tabela || ' ' || operacao || ' ' || coalesce(depois, '-') from auditoria"
              " order by codigo"),
        (std::vector<std::string>{"espera_servico exclusao -",
                                  "espera_funcionario inclusao {\"codigo\":1,\"codigo_da_espera\":"
                                      + std::to_string(code) + ",\"codigo_do_funcionario\":1}",
                                  "lista_de_espera alteracao {\"hora_final\":\"18:00\",\"versao\":2}"}));
}

TEST_F(WaitingList, TellsThoseWhoStillWaitTheOldestFirst)
{
    WaitingEntry entry = Entry();
    const Key late = AddWaiting(Data(), entry, At("2026-11-20 10:00:00"));
    const Key early = AddWaiting(Data(), entry, At("2026-11-20 09:00:00"));
    const Key same = AddWaiting(Data(), entry, At("2026-11-20 10:00:00"));
    entry.row.dataFinal = "2026-12-02";
    const Key soon = AddWaiting(Data(), entry, At("2026-11-20 08:00:00"));
    Run("update lista_de_espera set incluido_em = '2026-11-20 07:00:00' where codigo = "
        + std::to_string(same));
    Run("update lista_de_espera set incluido_em = '2026-11-20 08:00:00' where codigo <> "
        + std::to_string(same));
    EXPECT_EQ(OpenOn("2026-12-02"), (std::vector<Key>{same, late, early, soon}));
    EXPECT_EQ(OpenOn("2026-12-03"), (std::vector<Key>{same, late, early})) << "its days are over";
    Run("update lista_de_espera set situacao = 4 where codigo = " + std::to_string(same));
    Run("update lista_de_espera set situacao = 2 where codigo = " + std::to_string(late));
    EXPECT_EQ(OpenOn("2026-12-31"), (std::vector<Key>{late, early}));
    EXPECT_EQ(OpenOn("2027-01-01"), std::vector<Key>());
}

TEST_F(WaitingList, IsFoundByCustomersAndAnimals)
{
    const Key code = AddWaiting(Data(), Entry(), At("2026-11-20 10:00:00"));
    ASSERT_EQ(FindWaitingOf(Data(), 10).size(), 1U);
    EXPECT_EQ(FindWaitingOf(Data(), 10).front().codigo, code);
    EXPECT_TRUE(FindWaitingOf(Data(), 11).empty());
    EXPECT_EQ(FindWaitingFor(Data(), {50, 51}).size(), 1U);
    EXPECT_TRUE(FindWaitingFor(Data(), {51}).empty());
}

} // namespace kova::family::test
