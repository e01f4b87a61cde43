// Writes and reads over a connection that breaks, and transactions in each other's way.

#include "tests/support/meeting_point.hpp"
#include "tests/support/postgres_relay.hpp"
#include "tests/unit/family/business/appointments/desk_fixture.hpp"
#include "tests/unit/family/server_fixture.hpp"

#include "family/business/appointments/appointment_writes.hpp"
#include "family/business/appointments/status_change.hpp"
#include "family/business/shop/company_selection.hpp"
#include "family/data/engine/safe_write.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/shared_database.hpp"
#include "family/data/stores/pre_sales.hpp"

#include <thread>

namespace kova::family::test {

using kova::test::PostgresRelay;
using Breaks = PostgresRelay::Breaks;

namespace {

const std::vector<std::string> TradeNames = {"Pet Shop Amigo Fiel"};

bool Holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

} // namespace

/// The shop behind a relay.
class PostgresqlBehindARelay : public PostgresqlShop {
protected:
    PostgresqlBehindARelay() { database_ = OpenDatabase(relay_.AddressOf(shop_.Name())); }

    WriteAnswer Book() { return AddAppointments(*database_, Bath("01/12/2026"), Somebody); }
    /// What the failure of a booking says; "" where it is done.
    std::string FailureOfBooking()
    {
        return FailureOf([&] { Book(); });
    }

    PostgresRelay relay_{Server()};
    std::shared_ptr<Database> database_;
};

TEST_F(PostgresqlBehindARelay, ReadsAgainWhereTheConnectionWasLost)
{
    EXPECT_EQ(SelectTradeNames(*database_), TradeNames);
    for (int time = 0; time < 3; ++time) {
        relay_.Cut();
        EXPECT_EQ(SelectTradeNames(*database_), TradeNames);
    }
}

TEST_F(PostgresqlBehindARelay, WritesAgainWhereTheConnectionWasLostBefore)
{
    relay_.Cut();
    EXPECT_TRUE(Book().IsDone());
    EXPECT_EQ(Booked(), 1);
}

TEST_F(PostgresqlBehindARelay, BooksOnceWhereTheCommitDidNotArrive)
{
    relay_.Break(Breaks::BeforeCommit);
    EXPECT_TRUE(Book().IsDone());
    EXPECT_EQ(relay_.Broken(), 1);
    EXPECT_EQ(Booked(), 1);
}

TEST_F(PostgresqlBehindARelay, BooksOnceWhereTheAnswerToTheCommitIsLost)
{
    relay_.Break(Breaks::AfterCommit);
    EXPECT_TRUE(Book().IsDone());
    EXPECT_EQ(relay_.Broken(), 1);
    EXPECT_EQ(Booked(), 1);
}

TEST_F(PostgresqlBehindARelay, BooksOnceWhereTheCommitArrivesWhileItIsAskedAbout)
{
    relay_.Break(Breaks::DuringCommit);
    EXPECT_TRUE(Book().IsDone());
    EXPECT_EQ(relay_.Broken(), 1);
    EXPECT_EQ(Booked(), 1);
}

TEST_F(PostgresqlBehindARelay, KeepsTheAnswerOfTheFirstAttempt)
{
    relay_.Break(Breaks::AfterCommit);
    AppointmentInput input;
    input.number = 1;
    EXPECT_TRUE(DeleteAppointment(*database_, input, Somebody).IsDone());
    EXPECT_EQ(relay_.Broken(), 1);
    EXPECT_EQ(shop_.Run("select count(*) from auditoria where operacao = 'exclusao'").front(), "1");
}

TEST_F(PostgresqlBehindARelay, TellsWhereItIsNotKnownWhetherTheBookingWasKept)
{
    relay_.BreakEach(Breaks::BeforeCommit, 100);
    EXPECT_TRUE(Holds(FailureOfBooking(), "Não foi possível saber se a gravação foi concluída"));
    relay_.Break(Breaks::Nothing);
    EXPECT_EQ(Booked(), 0);
}

TEST_F(PostgresqlBehindARelay, TellsThatNothingWasWrittenAndGoesOnWhenTheServerIsBack)
{
    relay_.Refuse();
    const std::string told = FailureOfBooking();
    EXPECT_TRUE(Holds(told, "não pode ser alcançado")) << told;
    EXPECT_TRUE(Holds(told, "Nada foi gravado.")) << told;
    EXPECT_TRUE(Holds(FailureOf([&] { SelectTradeNames(*database_); }), "não pode ser alcançado"));
    relay_.Admit();
    EXPECT_EQ(SelectTradeNames(*database_), TradeNames);
    EXPECT_TRUE(Book().IsDone());
    EXPECT_EQ(Booked(), 1);
}

/// The component that a status button uses, behind the relay.
class PostgresqlDeskBehindARelay : public PostgresqlBehindARelay {
protected:
    PostgresqlDeskBehindARelay()
    {
        agenda_.Set("AtualizarSomenteOCampoSituacao", true);
        agenda_.Set("SituacaoAtual", Integer(1));
        agenda_.Set("SituacaoNova", Integer(2));
        agenda_.Set("NumeroDeLancamento", Double(2));
        agenda_.Set("DadosDoUsuario", std::make_shared<DeskUser>("Lia"));
    }
    ~PostgresqlDeskBehindARelay() override { CloseSharedDatabases(); }

    Text Told(const char* member) { return agenda_.Get(member).ToText(); }

    DeskHost desk_{relay_.AddressOf(shop_.Name())};
    Agenda agenda_{desk_};
};

TEST_F(PostgresqlDeskBehindARelay, AsksToTryAgainWhereTheConnectionWasLostBeforeTheCommitWasSent)
{
    EXPECT_EQ(agenda_.Call("Selecionar", DayArguments("20/11/2026")), Value(Integer(0)));
    relay_.Refuse();
    EXPECT_EQ(agenda_.Call("Alterar"), Value(Integer(2)));
    EXPECT_EQ(Told("NomeDoCampoValidado"), "Gravacao");
    EXPECT_TRUE(
        Told("DescricaoDaFalha").starts_with("Nada foi gravado.\r\nO servidor não pode ser alcançado."))
        << Told("DescricaoDaFalha");
    EXPECT_FALSE(Holds(Told("DescricaoDaFalha"), "postgresql")) << Told("DescricaoDaFalha");
    relay_.Admit();
    EXPECT_EQ(agenda_.Call("Alterar"), Value(Integer(0)));
}

TEST_F(PostgresqlDeskBehindARelay, FailsWhereNobodyCanTellWhetherAnythingWasKept)
{
    relay_.BreakEach(Breaks::BeforeCommit, 100);
    EXPECT_EQ(agenda_.Call("Alterar"), Value(Integer(1)));
    EXPECT_EQ(Told("NomeDoCampoValidado"), "");
    EXPECT_TRUE(Holds(Told("DescricaoDoErro"), "Não foi possível saber se a gravação foi concluída"));
}

TEST_F(PostgresqlShop, IsReadAndWrittenAfterARestartOfTheServer)
{
    const auto database = OpenDatabase(shop_.Address());
    EXPECT_EQ(SelectTradeNames(*database), TradeNames);
    Server().Stop();
    Server().Start();
    EXPECT_EQ(SelectTradeNames(*database), TradeNames);
    Server().Stop();
    Server().Start();
    EXPECT_TRUE(AddAppointments(*database, Bath("01/12/2026"), Somebody).IsDone());
    EXPECT_EQ(Booked(), 1);
}

TEST_F(PostgresqlShop, WaitsForAServerThatIsJustStarting)
{
    const auto database = OpenDatabase(shop_.Address());
    Server().Stop();
    std::vector<std::string> found;
    std::jthread reading([&] { found = SelectTradeNames(*database); });
    Server().Start();
    reading.join();
    EXPECT_EQ(found, TradeNames);
}

TEST_F(PostgresqlShop, WritesAgainAfterADeadlock)
{
    kova::test::MeetingPoint both(2);
    std::atomic<int> attempts = 0;
    const auto lockBoth = [&](int first, int second) {
        const auto database = OpenDatabase(shop_.Address());
        database->Session() << "set deadlock_timeout = '20ms'";
        bool met = false;
        WriteSafely(*database, [&] {
            const auto lock = [&](int employee) {
                database->With<EmployeeRename>([&](EmployeeRename& rename) { rename.Run(employee); });
            };
            ++attempts;
            lock(first);
            if (!met)
                both.ArriveAndWait();
            met = true;
            lock(second);
            return true;
        });
    };
    {
        const std::jthread one(lockBoth, 1, 2), other(lockBoth, 2, 1);
    }
    EXPECT_EQ(attempts, 3);
    EXPECT_EQ(shop_.Run("select nome from funcionario where codigo < 3 order by codigo"),
              (std::vector<std::string>{"José Carlos++", "Beatriz++"}));
}

TEST_F(PostgresqlShop, TellsThatAnotherDeskKeepsTheEmployee)
{
    const auto database = OpenDatabase(shop_.Address());
    const auto other = OpenDatabase(shop_.Address());
    database->Session() << "set lock_timeout = '30ms'";
    {
        WriteTransaction writing(*other);
        other->Session() << "select codigo from funcionario where codigo = 2 for no key update";
        const std::string told = FailureOf([&] { AddAppointments(*database, Bath("01/12/2026"), Somebody); });
        EXPECT_TRUE(Holds(told, "Outro posto está gravando")) << told;
        EXPECT_TRUE(Holds(told, "Nada foi gravado.")) << told;
    }
    EXPECT_TRUE(AddAppointments(*database, Bath("01/12/2026"), Somebody).IsDone());
}

TEST_F(PostgresqlShop, LetsNoAppointmentComeBackToAnEmployeeWhomAnotherDeskKeeps)
{
    const auto database = OpenDatabase(shop_.Address());
    const auto other = OpenDatabase(shop_.Address());
    database->Session() << "set lock_timeout = '30ms'";
    const auto bringBack = [&] { return FailureOf([&] { ChangeStatus(*database, 8, 1, Somebody); }); };
    {
        WriteTransaction writing(*other);
        other->Session() << "select codigo from funcionario where codigo = 2 for no key update";
        const std::string told = bringBack();
        EXPECT_TRUE(Holds(told, "Outro posto está gravando")) << told;
    }
    EXPECT_EQ(bringBack(), "");
}

TEST_F(PostgresqlShop, BringsTwoPackagesBackThatDeskAndDeskReadInOppositeOrders)
{
    // By their start, package 1 is of the employees 1 and 2, package 2 of 2 and 1.
    for (const char* statement :
         {"update funcionario set agendamentos_simultaneos = 0",
          "insert into pacote (codigo, codigo_do_servico, criado_em, criado_por)"
          " values (1, 2, '2026-11-01 09:00:00', 'Lia'), (2, 2, '2026-11-01 09:00:00', 'Lia')",
          "update agendamento set situacao = 3, codigo_do_pacote = 1 where numero in (1, 2)",
          "update agendamento set situacao = 3, codigo_do_pacote = 2 where numero in (3, 8)",
          "create sequence escritas",
          "create function espera() returns trigger language plpgsql as $$ begin perform nextval('escritas');"
          " perform pg_advisory_xact_lock_shared(7); return new; end $$",
          "create trigger espera before update on agendamento for each row execute function espera()"})
        shop_.Run(statement);
    const auto gate = OpenDatabase(shop_.Address());
    gate->Session() << "select pg_advisory_lock(7)";
    std::atomic<int> done = 0, over = 0;
    const auto bringBack = [&](Key package) {
        const auto database = OpenDatabase(shop_.Address());
        done += ChangeStatusInPackage(*database, package, 1, Somebody).IsDone() ? 1 : 0;
        ++over;
    };
    {
        const std::jthread one(bringBack, 1), other(bringBack, 2);
        while (over == 0 && WaitingForALock() < 2) { }
        gate->Session() << "select pg_advisory_unlock(7)";
    }
    EXPECT_EQ(done, 2);
    // Four rows, each written once: nobody had to begin again.
    EXPECT_EQ(shop_.Run("select last_value from escritas"), std::vector<std::string>{"4"});
}

/// The appointment 7 of the shop has a pre-sale, which another program bills.
class PostgresqlBilling : public PostgresqlShop {
protected:
    PostgresqlBilling()
    {
        shop_.Run("insert into pre_venda (numero_do_agendamento, valor_em_centavos, situacao, criada_em)"
                  " values (7, 6000, 1, '2026-11-20 09:00:00')");
    }

    void Bill() { biller_->Session() << "update pre_venda set situacao = 3"; }
    void ExpectRefused(const WriteAnswer& answer)
    {
        EXPECT_EQ(answer.status, WriteAnswer::Refused);
        EXPECT_EQ(answer.text,
                  "Não é possível alterar a situação: a pré-venda deste agendamento já foi faturada.");
        EXPECT_EQ(shop_.Run("select situacao from pre_venda"), std::vector<std::string>{"3"});
        EXPECT_EQ(shop_.Run("select situacao from agendamento where numero = 7"),
                  std::vector<std::string>{"4"});
    }

    std::shared_ptr<Database> desk_ = OpenDatabase(shop_.Address()), biller_ = OpenDatabase(shop_.Address());
};

TEST_F(PostgresqlBilling, WaitsForADeskThatHasReadThePreSaleToWriteIt)
{
    biller_->Session() << "set lock_timeout = '30ms'";
    {
        WriteTransaction writing(*desk_);
        ASSERT_EQ(FindPreSales(*desk_, 7).size(), 1U);
        EXPECT_THROW(Bill(), soci::soci_error);
    }
    Bill();
    ExpectRefused(ChangeStatus(*desk_, 7, 1, Somebody));
}

TEST_F(PostgresqlBilling, IsSeenByADeskThatHasWaitedForIt)
{
    biller_->Session().begin();
    Bill();
    std::atomic<bool> over = false;
    WriteAnswer answer;
    std::jthread cancelling([&] {
        answer = ChangeStatus(*desk_, 7, 1, Somebody);
        over = true;
    });
    while (!over && WaitingForALock() == 0) { }
    EXPECT_FALSE(over);
    biller_->Session().commit();
    cancelling.join();
    ExpectRefused(answer);
}

TEST_F(PostgresqlShop, ForgetsTheMarksOfWritesAfterTwoDays)
{
    shop_.Run("insert into gravacao values ('velha', to_char(now() at time zone 'utc' - interval '50 hours',"
              " 'YYYY-MM-DD HH24:MI:SS')), ('nova', to_char(now() at time zone 'utc' - interval '40 hours',"
              " 'YYYY-MM-DD HH24:MI:SS'))");
    OpenDatabase(shop_.Address());
    EXPECT_EQ(shop_.Run("select identificador from gravacao"), std::vector<std::string>{"nova"});
}

} // namespace kova::family::test
