// Registers on a server: connections that break, and desks that bring the same at the same moment.

#include "tests/support/meeting_point.hpp"
#include "tests/support/postgres_relay.hpp"
#include "tests/unit/family/server_fixture.hpp"

#include "family/business/appointments/appointment_writes.hpp"
#include "family/data/audit/import_audit.hpp"
#include "family/data/rows/numbering.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/registers/customers/customer_merge.hpp"
#include "family/registers/import_undo.hpp"
#include "family/registers/registers.hpp"

#include <atomic>
#include <thread>

namespace kova::family::test {

using kova::test::PostgresRelay;
using Breaks = PostgresRelay::Breaks;
using registers::FieldNamed;
using registers::Register;
using registers::SaveAnswer;

namespace {

const Author Lia{"7", "Lia", "2026-11-20 09:04:05", "BALCAO-1"};

/// Adds a customer whose name and document these are.
SaveAnswer AddCustomerTo(Database& database, const std::string& name, const char* document)
{
    const Register& customers = registers::CustomerRegister();
    registers::Texts typed = customers.New();
    typed[FieldNamed(customers.Fields(), "Nome")] = name;
    typed[FieldNamed(customers.Fields(), "Documento")] = document;
    return customers.Save(database, 0, {}, typed, Lia);
}

} // namespace

class PostgresqlRegisters : public PostgresqlShop {
protected:
    PostgresqlRegisters()
    {
        database_ = OpenDatabase(relay_.AddressOf(shop_.Name()));
        NumberOn(*database_);
    }

    SaveAnswer Rename(const std::string& name)
    {
        const Register& employees = registers::EmployeeRegister();
        const registers::Texts before = employees.Read(*database_, 2).value();
        registers::Texts typed = before;
        typed[FieldNamed(employees.Fields(), "Nome")] = name;
        return employees.Save(*database_, 2, before, typed, Lia);
    }
    std::string Changes()
    {
        return shop_.Run("select count(*) from auditoria where tabela = 'funcionario'").front();
    }

    PostgresRelay relay_{Server()};
    std::shared_ptr<Database> database_;
};

TEST_F(PostgresqlRegisters, SaveOnceWhereTheConnectionBreaksAroundTheCommit)
{
    int saved = 0;
    for (const Breaks breaks : {Breaks::BeforeCommit, Breaks::AfterCommit, Breaks::DuringCommit}) {
        relay_.Break(breaks);
        EXPECT_TRUE(Rename("Beatriz " + std::to_string(++saved)).IsDone());
        EXPECT_EQ(Changes(), std::to_string(saved));
        EXPECT_EQ(shop_.Run("select nome from funcionario where codigo = 2").front(),
                  "Beatriz " + std::to_string(saved));
    }
}

TEST_F(PostgresqlRegisters, SaveWhereTheConnectionWasLostBefore)
{
    relay_.Cut();
    EXPECT_TRUE(Rename("Beatriz N.").IsDone());
    EXPECT_EQ(Changes(), "1");
}

TEST_F(PostgresqlRegisters, TellThatNothingWasWrittenWhereTheServerIsAway)
{
    const Register& employees = registers::EmployeeRegister();
    const registers::Texts before = employees.Read(*database_, 2).value();
    relay_.Refuse();
    const std::string told = FailureOf([&] { employees.Save(*database_, 2, before, before, Lia); });
    EXPECT_NE(told.find("Nada foi gravado."), std::string::npos) << told;
    relay_.Admit();
    EXPECT_TRUE(Rename("Beatriz N.").IsDone());
}

TEST_F(PostgresqlRegisters, TakeADocumentOnceFromDesksThatBringItAtTheSameMoment)
{
    constexpr int Desks = 4;
    kova::test::MeetingPoint begin(Desks);
    std::atomic<int> done = 0, refused = 0;
    std::vector<std::thread> desks;
    for (int desk = 0; desk < Desks; ++desk)
        desks.emplace_back([&, desk] {
            const auto database = OpenDatabase(shop_.Address());
            for (const char* document : {"12.ABC.345/01DE-35", "529.982.247-25"}) {
                begin.ArriveAndWait();
                ++(AddCustomerTo(*database, "Cliente " + std::to_string(desk), document).IsDone() ? done
                                                                                                  : refused);
            }
        });
    for (std::thread& desk : desks)
        desk.join();
    EXPECT_EQ(done, 2);
    EXPECT_EQ(refused, 2 * Desks - 2);
}

TEST_F(PostgresqlRegisters, KeepOneRowOfTheOpeningHoursFromDesksThatRemoveThemAtTheSameMoment)
{
    const Register& open = registers::OpeningHoursRegister();
    const std::vector<Key> keys = open.Find(*database_, "");
    ASSERT_EQ(keys.size(), 6U);
    kova::test::MeetingPoint begin(static_cast<int>(keys.size()));
    std::atomic<int> done = 0;
    std::vector<std::thread> desks;
    for (const Key key : keys)
        desks.emplace_back([&, key] {
            const auto database = OpenDatabase(shop_.Address());
            begin.ArriveAndWait();
            done += open.Remove(*database, key, Lia).IsDone() ? 1 : 0;
        });
    for (std::thread& desk : desks)
        desk.join();
    EXPECT_EQ(done, 5);
    EXPECT_EQ(shop_.Run("select count(*) from expediente").front(), "1");
}

TEST_F(PostgresqlRegisters, UniteACustomerWithTheAppointmentThatIsJustBeingBooked)
{
    const auto booking = OpenDatabase(shop_.Address());
    booking->Session().begin();
    booking->Session() << "insert into agendamento (data_inicial, hora_inicial, data_final, hora_final,"
                          " tipo_do_agendamento, codigo_do_cliente, codigo_do_animal,"
                          " numero_do_tipo_de_servico, codigo_do_servico, codigo_do_funcionario, situacao,"
                          " incluido_em, incluido_por) select '2026-12-01', '09:00', '2026-12-01', '10:00',"
                          " 0, codigo_do_cliente, codigo_do_animal, numero_do_tipo_de_servico,"
                          " codigo_do_servico, codigo_do_funcionario, 1, incluido_em, incluido_por"
                          " from agendamento where numero = 3";
    const auto plan = registers::PlanCustomerMerge(*database_, 10, 11);
    std::atomic<bool> over = false;
    registers::MergeAnswer answer;
    std::string failure;
    {
        const std::jthread merging([&] {
            failure =
                FailureOf([&] { answer = registers::MergeCustomers(*database_, plan.value(), {}, Lia); });
            over = true;
        });
        while (!over && WaitingForALock() == 0) { }
        booking->Session().commit();
    }
    EXPECT_EQ(failure, "");
    EXPECT_TRUE(answer.IsDone());
    EXPECT_EQ(answer.appointments, 7);
    EXPECT_EQ(shop_.Run("select count(*) from agendamento where codigo_do_cliente = 10").front(), "9");
}

TEST_F(PostgresqlRegisters, TellWhoBooksForACustomerThatIsJustBecomingOneWithAnother)
{
    const auto another = OpenDatabase(shop_.Address()), desk = OpenDatabase(shop_.Address());
    another->Session().begin();
    another->Session() << "select numero from agendamento where numero = 3 for update";
    const auto plan = registers::PlanCustomerMerge(*database_, 10, 11);
    AppointmentInput input = Bath("01/12/2026");
    input.kind = 0;
    input.customer = 11;
    input.animal = 51;
    registers::MergeAnswer merged;
    WriteAnswer booked;
    std::string failureOfMerge, failureOfBooking;
    {
        std::atomic<bool> over = false;
        const std::jthread merging([&] {
            failureOfMerge =
                FailureOf([&] { merged = registers::MergeCustomers(*database_, plan.value(), {}, Lia); });
            over = true;
        });
        while (!over && WaitingForALock() < 1) { }
        const std::jthread booking([&] {
            failureOfBooking = FailureOf([&] { booked = AddAppointments(*desk, input, Lia); });
            over = true;
        });
        while (!over && WaitingForALock() < 2) { }
        another->Session().commit();
    }
    EXPECT_EQ(failureOfMerge, "");
    EXPECT_TRUE(merged.IsDone()) << merged.text;
    EXPECT_EQ(failureOfBooking, "");
    EXPECT_EQ(booked.text, "O cliente 11 foi unido ao cliente 10. Use o código 10.");
}

TEST_F(PostgresqlRegisters, AreTakenBackWithAFewStatementsForManyNewRows)
{
    constexpr int Rows = 600;
    const Register& customers = registers::CustomerRegister();
    registers::Texts typed = customers.New();
    typed[FieldNamed(customers.Fields(), "Nome")] = "Ana";
    typed[FieldNamed(customers.Fields(), "Canais")] = "Celular: (11) 91234-5678";
    Author importer = Lia;
    {
        WriteTransaction importing(*database_);
        BeginImport(*database_, importer, {"clientes.csv", "UTF-8", "clientes", Rows, Rows, 0});
        for (int row = 0; row < Rows; ++row)
            ASSERT_TRUE(customers.SaveWithin(*database_, 0, {}, typed, importer).IsDone());
        importing.Commit();
    }
    const int before = relay_.RoundTrips();
    const registers::UndoneImport undone =
        registers::UndoImport(*database_, std::nullopt, registers::ChangedRows::Refuse, Lia, {});
    EXPECT_EQ(undone.removed, Rows);
    EXPECT_EQ(shop_.Run("select count(*) from cliente").front(), "2");
    EXPECT_EQ(shop_.Run("select count(*) from canal_de_comunicacao where codigo_do_cliente > 11").front(),
              "0");
    EXPECT_EQ(shop_.Run("select count(*) from auditoria where operacao = 'exclusao'").front(),
              std::to_string(Rows));
    EXPECT_LT(relay_.RoundTrips() - before, 100);
}

TEST_F(PostgresqlRegisters, WriteAnAbsenceOfOneAndOfAll)
{
    const Register& absences = registers::AbsenceRegister();
    registers::Texts typed = {"", "2", "01/12/2026", "08:00", "02/12/2026", "24:00", "Curso"};
    const SaveAnswer added = absences.Save(*database_, 0, {}, typed, Lia);
    ASSERT_TRUE(added.IsDone());
    registers::Texts before = absences.Read(*database_, added.key).value();
    typed[0] = before[0];
    EXPECT_EQ(before, typed);
    typed[FieldNamed(absences.Fields(), "Código do funcionário")].clear();
    EXPECT_TRUE(absences.Save(*database_, added.key, before, typed, Lia).IsDone());
    EXPECT_EQ(shop_
                  .Run("select coalesce(codigo_do_funcionario, 0) || ' ' || data_inicial || ' ' ||"
                       " hora_final from ausencia")
                  .front(),
              "0 2026-12-01 24:00");
    EXPECT_TRUE(absences.Remove(*database_, added.key, Lia).IsDone());
    EXPECT_EQ(shop_.Run("select count(*) from ausencia").front(), "0");
}

} // namespace kova::family::test
