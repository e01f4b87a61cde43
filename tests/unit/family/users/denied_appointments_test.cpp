// What a desk is refused for want of a right, by the components that its screens use.

#include "tests/unit/family/bath.hpp"
#include "tests/unit/family/users/users_fixture.hpp"

#include "family/business/appointments/appointment_fields.hpp"
#include "family/business/appointments/appointment_restoration.hpp"
#include "family/business/appointments/appointment_writes.hpp"
#include "family/business/appointments/status_change.hpp"
#include "family/data/rows/find_by_key.hpp"

#include <functional>

namespace kova::family::test {

namespace {

/// A write that Lia asks for, and the right without which she is refused.
struct Write {
    const char* what;
    Right needed;
    std::function<WriteAnswer(Database& database, const Author& author)> run;
};

AppointmentInput Over(Double number, Long status)
{
    AppointmentInput input = Bath("03/12/2026");
    input.number = number;
    input.status = status;
    return input;
}

AppointmentInput Numbered(Double number)
{
    AppointmentInput input;
    input.number = number;
    return input;
}

/// 24 was deleted, 25 is cancelled, 26 booked; 7 has a pre-sale, 21 to 23 are a package, booked.
const Write Writes[] = {
    {"Booking", Right::Book,
     [](Database& database, const Author& author) {
         return AddAppointments(database, Bath("07/12/2026"), author);
     }},
    {"Alteration", Right::ChangeAppointments,
     [](Database& database, const Author& author) {
         return AlterAppointment(database, Over(26, 2), author);
     }},
    {"AlterationThatCancels", Right::CancelAppointments,
     [](Database& database, const Author& author) {
         return AlterAppointment(database, Over(26, 3), author);
     }},
    {"Deletion", Right::DeleteAppointments,
     [](Database& database, const Author& author) {
         return DeleteAppointment(database, Numbered(26), author);
     }},
    {"ReturnOfWhatWasDeleted", Right::Book,
     [](Database& database, const Author& author) { return RestoreAppointment(database, 24, author); }},
    {"StatusAttended", Right::ChangeAppointments,
     [](Database& database, const Author& author) { return ChangeStatus(database, 26, 2, author); }},
    {"StatusCancelled", Right::CancelAppointments,
     [](Database& database, const Author& author) { return ChangeStatus(database, 26, 3, author); }},
    {"ReturnFromCancelled", Right::ChangeAppointments,
     [](Database& database, const Author& author) { return ChangeStatus(database, 25, 1, author); }},
    {"PreSaleUndone", Right::UndoPreSales,
     [](Database& database, const Author& author) { return ChangeStatus(database, 7, 2, author); }},
    {"PreSaleUndoneAndCancelled", Right::CancelAppointments,
     [](Database& database, const Author& author) { return ChangeStatus(database, 7, 3, author); }},
    {"PreSaleMadeForAnother", Right::UndoPreSales,
     [](Database& database, const Author& author) {
         AppointmentInput input = InputOf(FindByKey<AppointmentRow>(database, 7).value());
         input.customer = 10;
         input.animal = 50;
         return AlterAppointment(database, input, author);
     }},
    {"PackageAttended", Right::ChangeAppointments,
     [](Database& database, const Author& author) { return ChangeStatusOfPackage(database, 21, 2, author); }},
    {"PackageCancelled", Right::CancelAppointments,
     [](Database& database, const Author& author) { return ChangeStatusInPackage(database, 1, 3, author); }},
};

Rights AllBut(Right right)
{
    Rights rights;
    for (const RightInfo& info : AllRights()) {
        if (info.right != right)
            rights.insert(info.right);
    }
    return rights;
}

} // namespace

class DeniedWrites : public UsersTest, public testing::WithParamInterface<Write> {
protected:
    DeniedWrites()
    {
        for (const char* day : {"01/12/2026", "02/12/2026", "03/12/2026"})
            EXPECT_TRUE(AddAppointments(Data(), Bath(day), ana_).IsDone());
        EXPECT_TRUE(DeleteAppointment(Data(), Numbered(24), ana_).IsDone());
        EXPECT_TRUE(ChangeStatus(Data(), 25, 3, ana_).IsDone());
        MakeUsers();
    }
};

TEST_P(DeniedWrites, AreRefusedWithoutThatRightAndDoneWithAll)
{
    const Write& write = GetParam();
    Allow(AllBut(write.needed));
    std::vector<std::string> before = Everything();
    const WriteAnswer answer = write.run(Data(), lia_);
    EXPECT_EQ(answer.status, WriteAnswer::Refused);
    EXPECT_EQ(answer.text,
              "Recepção não pode " + InfoOf(write.needed).Act() + ". Peça a quem administra os usuários.");
    before.push_back("usuario 7 direito_negado - {\"direito\":\"" + std::string(InfoOf(write.needed).name)
                     + "\"}");
    EXPECT_EQ(Everything(), before);

    GiveLia(Administration);
    const WriteAnswer done = write.run(Data(), lia_);
    EXPECT_TRUE(done.IsDone()) << done.field << " " << done.text;
}

TEST_P(DeniedWrites, AreDoneWithoutUsers)
{
    Run("update usuario set codigo_do_papel = null");
    const WriteAnswer done = GetParam().run(Data(), lia_);
    EXPECT_TRUE(done.IsDone()) << done.field << " " << done.text;
}

INSTANTIATE_TEST_SUITE_P(OfAppointments, DeniedWrites, testing::ValuesIn(Writes),
                         [](const auto& one) { return std::string(one.param.what); });

class DeniedAtTheDesk : public UsersTest {
protected:
    DeniedAtTheDesk() { MakeUsers(); }
};

TEST_F(DeniedAtTheDesk, IsAnsweredAsARefusalWithTheSentence)
{
    Agenda agenda(desk_);
    agenda.Set("NumeroDeLancamento", 4.0);
    agenda.Set("DadosDoUsuario", std::make_shared<DeskUser>("Lia"));
    EXPECT_EQ(agenda.Call("Excluir"), Value(Integer(3)));
    EXPECT_EQ(agenda.Get("DescricaoDaFalha").ToText(),
              "Recepção não pode excluir agendamentos. Peça a quem administra os usuários.");
    EXPECT_EQ(agenda.Get("NomeDoCampoValidado").ToText(), "");
    EXPECT_EQ(LinesOf("direito_negado"),
              std::vector<std::string>{R"(7 7 - Lia direito_negado {"direito":"agendamento.excluir"})"});
}

TEST_F(DeniedAtTheDesk, TellsNothingOfTheRightWhereThereIsNothingToWrite)
{
    Allow({});
    EXPECT_EQ(Change(4711, 2), 3);
    EXPECT_EQ(Desk(4, 9)->Call("Alterar"), Value(Integer(2)));
    EXPECT_EQ(LinesOf("direito_negado"), std::vector<std::string>());
}

TEST_F(DeniedAtTheDesk, IsRefusedAlsoWhereTheAuditTakesNoLineOfIt)
{
    Break("auditoria", "before insert");
    Agenda agenda(desk_);
    agenda.Set("NumeroDeLancamento", 4.0);
    agenda.Set("DadosDoUsuario", std::make_shared<DeskUser>("Lia"));
    EXPECT_EQ(agenda.Call("Excluir"), Value(Integer(3)));
    Mend("auditoria");
    EXPECT_EQ(Count("agendamento where numero = 4"), 1);
}

TEST_F(DeniedAtTheDesk, IsWhoeverHasNoRoleAnyMore)
{
    GiveLia(0);
    EXPECT_EQ(Change(4, 2), 3);
    EXPECT_EQ(StatusOf(4), 1);
}

} // namespace kova::family::test
