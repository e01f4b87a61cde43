#include "tests/window/shop.hpp"

#include "agenda/contracts/widgets.hpp"

namespace kova::window_test {

namespace {

using Status = Shop;

TEST_F(Status, ChangedByKeyInTheWindowIsInTheDatabaseWithWhoAndWhen)
{
    Execute("update agendamento set situacao = 1, alterado_por = null, alterado_em = null");
    std::string number;
    receptionist->WaitsFor("frmLista").Presses("F7").Presses("Down").Looks([&] {
        auto* grid = As<MSFlexGrid>(Receptionist::Control("frmLista", "msfgGrade"));
        number = grid->TextMatrix(grid->Row(), 1);
    });
    receptionist->Presses("Ctrl+2").WaitsFor("frmLista").Leaves();
    Run();
    EXPECT_EQ(Value("select situacao, alterado_por from agendamento where numero = " + number), "2|Antônia");
    EXPECT_EQ(Value("select substr(alterado_em, 1, 10) from agendamento where numero = " + number),
              "2026-11-20");
    EXPECT_EQ(Value("select count(*) from auditoria where tabela = 'agendamento' and usuario = '0 - Antônia' "
                    "and chave = '"
                    + number + "'"),
              "1");
}

TEST_F(Status, StaysAsItWasWhereAnotherProgramHoldsTheDatabaseForLongerThanTheWait)
{
    Execute("update agendamento set situacao = 1");
    std::unique_ptr<test::SqliteFile> other;
    std::string shown;
    receptionist->WaitsFor("frmLista").Presses("F7").Presses("Down").Looks([&] {
        other = OpenedByAnotherProgram();
        other->Run("begin immediate");
    });
    receptionist->Presses("Ctrl+2").Answers("Return").WaitsFor("frmLista").Looks([&] {
        auto* grid = As<MSFlexGrid>(Receptionist::Control("frmLista", "msfgGrade"));
        shown = grid->TextMatrix(grid->Row(), 33);
        other->Run("rollback");
    });
    receptionist->Leaves();
    Run();
    EXPECT_EQ(
        receptionist->Boxes(),
        (std::vector<std::string>{"Não foi possível alterar a situação do agendamento - Tente novamente "
                                  "mais tarde."}));
    EXPECT_EQ(shown, "1");
    EXPECT_EQ(Value("select count(*) from agendamento where situacao <> 1"), "0");
}

} // namespace

} // namespace kova::window_test
