// A person is made anonymous while other desks of a server write.

#include "tests/unit/family/server_fixture.hpp"

#include "family/business/appointments/appointment_writes.hpp"
#include "family/data/engine/write_transaction.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/booking_registers.hpp"
#include "family/privacy/anonymise.hpp"

#include <atomic>
#include <thread>

namespace kova::family::test {

namespace {

const Author Later{"3", "Ana", "2026-12-01 10:00:00", "BALCAO-1"};

std::string LineNaming(const char* name)
{
    return std::string("insert into auditoria (momento, usuario, tabela, chave, operacao, antes) values"
                       " ('2026-11-20 09:00:00', '1 - Ana', 'animal', 77, 'exclusao',"
                       " '{\"codigo_do_cliente\":10,\"nome\":\"")
        + name + "\"}')";
}

using privacy::AnonymiseAnswer;

/// Booked, and still to come then.
constexpr const char* BookingForCustomer10 =
    "insert into agendamento (data_inicial, hora_inicial, data_final, hora_final, tipo_do_agendamento,"
    " codigo_do_cliente, codigo_do_animal, numero_do_tipo_de_servico, codigo_do_servico,"
    " codigo_do_funcionario, situacao, incluido_em, incluido_por) select '2026-12-02', '09:00', '2026-12-02',"
    " '10:00', 0, codigo_do_cliente, codigo_do_animal, numero_do_tipo_de_servico, codigo_do_servico,"
    " codigo_do_funcionario, 1, incluido_em, incluido_por from agendamento where numero = 2";

AppointmentInput BathOfCustomer10()
{
    AppointmentInput input = Bath("02/12/2026");
    input.kind = 0;
    input.customer = 10;
    input.animal = 50;
    return input;
}

using PostgresqlPrivacy = PostgresqlShop;

} // namespace

TEST_F(PostgresqlPrivacy, CleansLinesThatADeskKeepsWhileTheAuditIsLookedThrough)
{
    const auto desk = OpenDatabase(shop_.Address());
    desk->Session() << "begin";
    desk->Session() << LineNaming("zq late");
    // Behind it in the audit, and kept before it.
    shop_.Run(LineNaming("zq early"));
    bool isKept = false;
    LongWork work;
    work.progress = [&](long long done, long long total) {
        if (done == total && !isKept) {
            desk->Session() << "commit";
            isKept = true;
        }
    };
    ASSERT_TRUE(privacy::Anonymise(shop_.Address(), {10, {}}, Later, work).IsDone());
    ASSERT_TRUE(isKept);
    EXPECT_EQ(shop_.Run("select antes from auditoria where operacao = 'exclusao'"),
              std::vector<std::string>(2, "{\"codigo_do_cliente\":10,\"nome\":\"Animal anonimizado 77\"}"));
}

TEST_F(PostgresqlPrivacy, LeavesNoValuesInWhatTheServerHasCounted)
{
    shop_.Run("analyze");
    const std::string counted = "select count(*) from pg_stats where tablename = 'cliente' and"
                                " (cast(most_common_vals as text) like '%Peçanha%'"
                                " or cast(histogram_bounds as text) like '%Peçanha%')";
    ASSERT_NE(shop_.Run(counted).front(), "0");
    ASSERT_TRUE(privacy::Anonymise(shop_.Address(), {10, {}}, Later, {}).IsDone());
    EXPECT_EQ(shop_.Run(counted).front(), "0");
}

TEST_F(PostgresqlPrivacy, WaitsForADeskThatWritesAnAppointment)
{
    const auto desk = OpenDatabase(shop_.Address());
    desk->Session() << "begin";
    desk->Session() << "update agendamento set observacao = 'zq remark', situacao = 2 where numero = 2";
    std::thread commit([&] {
        while (WaitingForALock() == 0)
            std::this_thread::yield();
        desk->Session() << "commit";
    });
    const bool done = privacy::Anonymise(shop_.Address(), {10, {}}, Later, {}).IsDone();
    commit.join();
    EXPECT_TRUE(done);
    EXPECT_EQ(shop_.Run("select situacao, observacao from agendamento where numero = 2"),
              std::vector<std::string>{"2|(null)"});
}

TEST_F(PostgresqlPrivacy, WaitsForABookingOfTheCustomerAndIsRefusedForIt)
{
    const auto desk = OpenDatabase(shop_.Address());
    AnonymiseAnswer answer;
    std::string failure;
    {
        WriteTransaction booking(*desk);
        ASSERT_TRUE(FindBookingRegisters(*desk, {.customer = 10, .employee = 2}).customer->IsUsable());
        std::atomic<bool> over = false;
        const std::jthread anonymising([&] {
            failure = FailureOf([&] { answer = privacy::Anonymise(shop_.Address(), {10, {}}, Later, {}); });
            over = true;
        });
        while (!over && WaitingForALock() == 0)
            std::this_thread::yield();
        desk->Session() << BookingForCustomer10;
        booking.Commit();
    }
    EXPECT_EQ(failure, "");
    EXPECT_EQ(answer.outcome, AnonymiseAnswer::Outcome::Refused);
    EXPECT_NE(answer.text.find("ainda tem agendamentos marcados"), std::string::npos) << answer.text;
    EXPECT_EQ(shop_.Run("select situacao from cliente where codigo = 10").front(), "1");
}

TEST_F(PostgresqlPrivacy, LetsNobodyBookForTheCustomerWhoIsBecomingAnonymous)
{
    const auto another = OpenDatabase(shop_.Address()), desk = OpenDatabase(shop_.Address());
    another->Session() << "begin";
    another->Session() << "select numero from agendamento where numero = 2 for update";
    WriteAnswer booked;
    std::string failure;
    {
        std::atomic<bool> over = false;
        const std::jthread anonymising([&] {
            failure = FailureOf([&] { privacy::Anonymise(shop_.Address(), {10, {}}, Later, {}); });
            over = true;
        });
        while (!over && WaitingForALock() < 1)
            std::this_thread::yield();
        const std::jthread booking([&] {
            booked = AddAppointments(*desk, BathOfCustomer10(), Later);
            over = true;
        });
        while (!over && WaitingForALock() < 2)
            std::this_thread::yield();
        another->Session() << "commit";
    }
    EXPECT_EQ(failure, "");
    EXPECT_EQ(booked.status, WriteAnswer::Invalid);
    EXPECT_EQ(booked.text, "O cliente informado não está ativo.");
    EXPECT_EQ(Booked(), 0);
}

} // namespace kova::family::test
