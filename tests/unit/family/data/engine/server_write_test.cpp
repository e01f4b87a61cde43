// Writes and reads over a connection that breaks, and transactions in each other's way.

#include "tests/support/postgres_relay.hpp"
#include "tests/unit/family/business/appointments/desk_fixture.hpp"
#include "tests/unit/family/server_fixture.hpp"

#include "family/business/appointments/appointment_writes.hpp"
#include "family/business/shop/company_selection.hpp"
#include "family/data/engine/safe_write.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/shared_database.hpp"

#include <barrier>
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
    std::barrier both(2);
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
                both.arrive_and_wait();
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

TEST_F(PostgresqlShop, ForgetsTheMarksOfWritesAfterTwoDays)
{
    shop_.Run("insert into gravacao values ('velha', to_char(now() at time zone 'utc' - interval '50 hours',"
              " 'YYYY-MM-DD HH24:MI:SS')), ('nova', to_char(now() at time zone 'utc' - interval '40 hours',"
              " 'YYYY-MM-DD HH24:MI:SS'))");
    OpenDatabase(shop_.Address());
    EXPECT_EQ(shop_.Run("select identificador from gravacao"), std::vector<std::string>{"nova"});
}

} // namespace kova::family::test
