// Desks in processes of their own, racing for an employee and ending without notice, and a server that is
// killed. On an SQLite file, or on a server with KOVARIS_TEST_SERVER.

#include "tests/unit/family/bath.hpp"
#include "tests/unit/family/shop_fixture.hpp"

#include "agenda/contracts/date_time.hpp"
#include "family/business/appointments/appointment_writes.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/shared_database.hpp"
#include "family/demo/random.hpp"

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <set>
#include <thread>

namespace kova::family::test {

using kova::test::PostgresServer;

namespace {

constexpr int AppointmentsOfSeries = 3;

/// A weekly bath for Paçoca with that remark.
AppointmentInput Series(const Text& date, const Text& remark)
{
    AppointmentInput input;
    input.status = 1;
    input.customer = 10;
    input.animal = 50;
    input.serviceType = 4;
    input.service = 2;
    input.employee = 2;
    input.startDate = input.endDate = date;
    input.startTime = "09:00";
    input.endTime = "10:00";
    input.repetitions = AppointmentsOfSeries - 1;
    input.frequency = AppointmentInput::Weekly;
    input.validated = true;
    input.remark = remark;
    return input;
}

/// A process of its own that runs `work` with a file to write to.
class Desk {
public:
    explicit Desk(const std::function<void(int told)>& work)
    {
        int ends[2];
        if (pipe(ends) != 0)
            throw std::runtime_error("no pipe could be made");
        process_ = fork();
        if (process_ == 0) {
            close(ends[0]);
            try {
                work(ends[1]);
                _exit(0);
            } catch (const std::exception&) {
                _exit(1);
            }
        }
        close(ends[1]);
        told_ = ends[0];
    }
    ~Desk()
    {
        Kill();
        close(told_);
    }
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    void Kill() const { kill(process_, SIGKILL); }
    /// Everything that it tells until its end.
    std::vector<int> Told()
    {
        while (Take())
            ;
        waitpid(process_, nullptr, 0);
        return taken_;
    }
    /// Waits until it tells something that it had not told before.
    void WaitForAnother()
    {
        while (HasTold())
            ASSERT_TRUE(Take()) << "a desk has ended";
        ASSERT_TRUE(Take()) << "a desk has ended";
    }

private:
    bool HasTold() const
    {
        pollfd look{told_, POLLIN, 0};
        return poll(&look, 1, 0) > 0;
    }
    /// Answers whether there was another one.
    bool Take()
    {
        int number = 0;
        if (read(told_, &number, sizeof number) != sizeof number)
            return false;
        taken_.push_back(number);
        return true;
    }

    pid_t process_ = 0;
    int told_ = -1;
    std::vector<int> taken_;
};

void Tell(int to, int number)
{
    if (write(to, &number, sizeof number) != sizeof number)
        _exit(1);
}

constexpr int Begins = -1;

/// Books one series after the other, until it is killed or nobody listens, and tells each that was answered
/// with Done. Goes on after a lost connection.
void BookOnAndOn(const std::string& dataSource, int round, int told)
{
    const auto database = OpenDatabase(dataSource);
    Tell(told, Begins);
    for (int series = 0;; ++series) {
        try {
            const std::string remark = std::to_string(round) + "." + std::to_string(series);
            if (AddAppointments(*database, Series("01/12/2026", remark), Somebody).IsDone())
                Tell(told, series);
        } catch (const DatabaseFailure& failure) {
            if (failure.GetFault() != Fault::ConnectionLost && failure.GetFault() != Fault::InDoubt)
                throw;
        }
    }
}

} // namespace

class DesksTest : public testing::Test {
protected:
    virtual std::string DataSource() const = 0;

    /// A connection that is open here would be of no use to another process.
    ~DesksTest() override { CloseSharedDatabases(); }

    void SetLimit(int limit)
    {
        OpenDatabase(DataSource())->Session()
            << "update funcionario set agendamentos_simultaneos = " + std::to_string(limit);
    }

    /// Each series that is there is whole, with its lines in the audit. Answers their remarks.
    std::set<std::string> WholeSeries()
    {
        std::set<std::string> remarks;
        std::string remark;
        int appointments = 0, lines = 0;
        const auto database = OpenDatabase(DataSource());
        soci::statement statement =
            (database->Session().prepare
                 << "select a.observacao, count(distinct a.numero), count(b.codigo) from agendamento a"
                    " left join auditoria b on b.tabela = 'agendamento' and b.chave = a.numero"
                    " where a.numero > 9 group by a.observacao",
             soci::into(remark), soci::into(appointments), soci::into(lines));
        statement.execute();
        while (statement.fetch()) {
            remarks.insert(remark);
            EXPECT_EQ(appointments, AppointmentsOfSeries) << remark;
            EXPECT_EQ(lines, AppointmentsOfSeries) << remark;
        }
        return remarks;
    }

    void ExpectKept(int round, const std::vector<int>& told)
    {
        const std::set<std::string> stored = WholeSeries();
        for (const int series : told) {
            EXPECT_TRUE(series == Begins
                        || stored.contains(std::to_string(round) + "." + std::to_string(series)))
                << series;
        }
    }
};

class DesksOfTheirOwn : public DesksTest {
protected:
    std::string DataSource() const override { return shop_.DataSource(); }

private:
    ShopDatabase shop_;
};

TEST_F(DesksOfTheirOwn, NeverBookAnEmployeeBeyondTheLimit)
{
    constexpr int Desks = 8, Days = 6, Limit = 2;
    SetLimit(Limit);
    int done = 0;
    {
        std::vector<std::unique_ptr<Desk>> desks;
        for (int desk = 0; desk < Desks; ++desk)
            desks.push_back(std::make_unique<Desk>([&](int told) {
                const auto database = OpenDatabase(DataSource());
                for (int day = 1; day <= Days; ++day) {
                    AppointmentInput input = Series(FormatDate({2027, 2, day}), std::to_string(desk));
                    input.repetitions = 0;
                    if (AddAppointments(*database, input, Somebody).IsDone())
                        Tell(told, day);
                }
                Tell(told, 0);
            }));
        for (const auto& desk : desks) {
            const std::vector<int> told = desk->Told();
            ASSERT_FALSE(told.empty());
            EXPECT_EQ(told.back(), 0) << "a desk has failed";
            done += static_cast<int>(told.size()) - 1;
        }
    }
    EXPECT_EQ(done, Limit * Days);
    int days = 0;
    OpenDatabase(DataSource())->Session()
        << "select count(*) from (select data_inicial from agendamento where numero > 9 group by data_inicial"
           " having count(*) = 2) as days",
        soci::into(days);
    EXPECT_EQ(days, Days);
}

TEST_F(DesksOfTheirOwn, ThatAreKilledLeaveWhatTheyWereAnsweredAndNothingHalf)
{
    constexpr int Rounds = 80, LongestUs = 30000;
    SetLimit(0);
    Random random(1);
    for (int round = 0; round < Rounds; ++round) {
        SCOPED_TRACE(round);
        Desk desk([&](int told) { BookOnAndOn(DataSource(), round, told); });
        desk.WaitForAnother();
        std::this_thread::sleep_for(std::chrono::microseconds(random.Below(LongestUs)));
        desk.Kill();
        ExpectKept(round, desk.Told());
    }
    EXPECT_FALSE(WholeSeries().empty());
}

class PostgresqlThatIsKilled : public DesksTest {
protected:
    PostgresqlThatIsKilled() { MakeShop(dataSource_); }
    std::string DataSource() const override { return dataSource_; }

    PostgresServer server_;

private:
    std::string dataSource_ = server_.AddressOf(server_.MakeDatabase());
};

TEST_F(PostgresqlThatIsKilled, HasKeptWhatItAnsweredAndNothingHalfOrTwice)
{
    constexpr int Desks = 2, Kills = 40, LongestUs = 40000;
    SetLimit(0);
    Random random(2);
    std::vector<std::unique_ptr<Desk>> desks;
    for (int desk = 0; desk < Desks; ++desk) {
        desks.push_back(std::make_unique<Desk>([&](int told) { BookOnAndOn(DataSource(), desk, told); }));
        desks.back()->WaitForAnother();
    }
    for (int kill = 0; kill < Kills; ++kill) {
        desks[static_cast<std::size_t>(kill % Desks)]->WaitForAnother();
        std::this_thread::sleep_for(std::chrono::microseconds(random.Below(LongestUs)));
        server_.Kill();
        server_.Start();
    }
    for (int desk = 0; desk < Desks; ++desk) {
        desks[static_cast<std::size_t>(desk)]->Kill();
        ExpectKept(desk, desks[static_cast<std::size_t>(desk)]->Told());
    }
    EXPECT_GE(WholeSeries().size(), static_cast<std::size_t>(Kills));
}

} // namespace kova::family::test
