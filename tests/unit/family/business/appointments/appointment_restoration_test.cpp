#include "tests/unit/family/business/appointments/two_desk_fixture.hpp"

#include "family/business/appointments/appointment_history.hpp"
#include "family/business/appointments/appointment_restoration.hpp"
#include "family/data/audit/audit_lines.hpp"
#include "family/data/sources/shared_database.hpp"

namespace kova::family::test {

class Restoration : public TwoDesksTest {
protected:
    WriteAnswer Restore(Key number)
    {
        return RestoreAppointment(*SharedDatabase(host_.DataSource()), number, marcos_);
    }

    /// Every column of a row but for its version.
    std::vector<std::string> RowOf(Key number)
    {
        return RowsOf("agendamento", "numero = " + std::to_string(number), "versao");
    }

    void ExpectRefused(Key number, const std::string& obstacle)
    {
        const auto before = Contents();
        const WriteAnswer answer = Restore(number);
        EXPECT_EQ(answer.status, WriteAnswer::Refused);
        EXPECT_EQ(answer.text,
                  "O agendamento " + std::to_string(number) + " não pode ser restaurado: " + obstacle);
        EXPECT_EQ(Contents(), before);
    }
};

TEST_F(Restoration, BringsBackEveryColumnUnderTheSameNumber)
{
    // The shop's own appointments overlap.
    Run("update funcionario set agendamentos_simultaneos = 0");
    for (const Key number : {FullNumber, SimplifiedNumber, Key(2), Key(21)}) {
        const auto before = RowOf(number);
        ASSERT_EQ(before.size(), 1U);
        OtherDeletes(number);
        ASSERT_TRUE(RowOf(number).empty());
        EXPECT_TRUE(Restore(number).IsDone());
        EXPECT_EQ(RowOf(number), before);
    }
}

TEST_F(Restoration, LeavesItsOwnLineInTheAudit)
{
    OtherDeletes(FullNumber);
    ASSERT_TRUE(Restore(FullNumber).IsDone());
    EXPECT_EQ(HistoryOf(*SharedDatabase(host_.DataSource()), FullNumber).back().operation, "Restauração");
    const AuditLine line = FindAuditLines(*otherDesk_, "agendamento", FullNumber, 1).front();
    EXPECT_EQ(line.operation, "restauracao");
    EXPECT_TRUE(line.before.empty());
    EXPECT_EQ(line.after.at("versao"), "2");
}

TEST_F(Restoration, CanBeDoneAgainAfterAnotherDeletion)
{
    for (int time = 1; time <= 2; ++time) {
        OtherDeletes(FullNumber);
        EXPECT_TRUE(Restore(FullNumber).IsDone());
    }
    EXPECT_EQ(Stored(FullNumber).versao, 3);
}

TEST_F(Restoration, IsNoObstacleToADeskThatStillShowsTheRow)
{
    Shows();
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.take = 1; });
    OtherDeletes(FullNumber);
    ASSERT_TRUE(Restore(FullNumber).IsDone());
    const auto form = Form(FullNumber);
    form->Set("Observacao", "Laço verde.");
    ASSERT_EQ(Write(*form, "Alterar"), 0);
    EXPECT_EQ(Stored(FullNumber).transporteLevar, 1);
    EXPECT_EQ(Stored(FullNumber).observacao.value, "Laço verde.");
}

TEST_F(Restoration, IsRefusedWhereTheAppointmentExistsOrNobodyKnowsIt)
{
    ExpectRefused(FullNumber, "ele existe.");
    ExpectRefused(999, "não há registro da exclusão dele.");
    OtherDeletes(FullNumber);
    Run("update auditoria set antes = '{\"numero\":24}' where operacao = 'exclusao'");
    ExpectRefused(FullNumber, "não há registro da exclusão dele.");
}

TEST_F(Restoration, IsRefusedWhereWhatItRefersToIsGone)
{
    OtherDeletes(FullNumber);
    UncheckReferences(Session());
    struct {
        const char *table, *key, *obstacle;
    } const gone[] = {{"cliente", "codigo = 10", "o cliente 10 não existe mais."},
                      {"animal", "codigo = 50", "o animal 50 não existe mais."},
                      {"tipo_de_servico", "numero = 4", "o tipo de serviço 4 não existe mais."},
                      {"servico", "codigo = 2", "o serviço 2 não existe mais."},
                      {"funcionario", "codigo = 2", "o(a) funcionário(a) 2 não existe mais."}};
    for (const auto& [table, key, obstacle] : gone) {
        Run("create table guardado as select * from " + std::string(table));
        Run("delete from " + std::string(table) + " where " + key);
        ExpectRefused(FullNumber, obstacle);
        Run("insert into " + std::string(table) + " select * from guardado where " + key);
        Run("drop table guardado");
    }
    EXPECT_TRUE(Restore(FullNumber).IsDone());
}

TEST_F(Restoration, IsRefusedWhereTheEmployeeHasNoRoomAnyMore)
{
    OtherDeletes(FullNumber);
    ASSERT_EQ(Write(*Full(On(Day, "09:30", "10:30"))), 0);
    ExpectRefused(FullNumber, "Bia já tem agendamento das 09:30 às 10:30 em 01/12/2026.");
    Run("update agendamento set situacao = 3 where numero = 26");
    EXPECT_TRUE(Restore(FullNumber).IsDone());
}

TEST_F(Restoration, OfACancelledAppointmentNeedsNoRoom)
{
    OtherSetsStatus(FullNumber, 3);
    OtherDeletes(FullNumber);
    ASSERT_EQ(Write(*Full(On(Day, "09:30", "10:30"))), 0);
    EXPECT_TRUE(Restore(FullNumber).IsDone());
}

} // namespace kova::family::test
