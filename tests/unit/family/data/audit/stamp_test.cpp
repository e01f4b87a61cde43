// What a desk writes is stamped by the clock that all desks have in common, whatever its own shows.

#include "tests/unit/family/bath.hpp"
#include "tests/unit/family/business/appointments/desk_fixture.hpp"
#include "tests/unit/family/server_fixture.hpp"

#include "family/business/appointments/appointment_writes.hpp"
#include "family/business/appointments/status_change.hpp"
#include "family/business/current_author.hpp"
#include "family/data/audit/audit_events.hpp"
#include "family/data/checks/rule_check.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/shared_database.hpp"
#include "family/data/sources/told_reading.hpp"

namespace kova::family::test {

namespace {

/// A computer's own clock, that shows what it is told to; or one that somebody has set on purpose.
class ClockThatShows : public Clock {
public:
    explicit ClockThatShows(DateTime shown, bool isComputersOwn = true)
        : shown_(shown), isComputersOwn_(isComputersOwn)
    {
    }
    DateTime Now() const override { return shown_; }
    Double Timer() const override { return 0; }
    bool IsComputersOwn() const override { return isComputersOwn_; }

private:
    DateTime shown_;
    bool isComputersOwn_;
};

/// The author at a desk whose clock shows that.
Author AuthorAt(const std::string& shown, bool isComputersOwn)
{
    const DateTime moment = ReadIsoMoment(shown.substr(0, 10), shown.substr(11, 5));
    return CurrentAuthor(std::make_shared<DeskUser>("Lia"), ClockThatShows(moment, isComputersOwn));
}

} // namespace

class Stamps : public DeskTest {
protected:
    /// What the clock shows that all desks go by, in its zone; an hour of a known day on a file.
    std::string Now(const std::string& later = "0 hours")
    {
        return TestsRunOnServer() ? Texts("select to_char(clock_timestamp() + interval '" + later
                                          + "', 'YYYY-MM-DD HH24:MI:SSTZH:TZM')")
                                        .front()
                                  : "2026-11-20 09:04:05";
    }
    void Book(const std::string& day, const Author& author)
    {
        const WriteAnswer answer = AddAppointments(*SharedDatabase(host_.DataSource()), Bath(day), author);
        EXPECT_TRUE(answer.IsDone()) << answer.text;
    }
    std::vector<std::string> LinesOfAudit() { return Texts("select momento from auditoria order by codigo"); }
};

TEST_F(Stamps, AreTheServersWhereADeskIsAnHourFastAndTheComputersOnAFile)
{
    const std::string before = Now();
    const Author author = AuthorAt(Now("1 hour"), true);
    Book("07/12/2026", author);
    const std::string after = Now();

    const std::string line = LinesOfAudit().at(0);
    const std::string row = Texts("select max(incluido_em) from agendamento").at(0);
    if (TestsRunOnServer()) {
        EXPECT_LE(before, line);
        EXPECT_LE(line, after);
        EXPECT_EQ(line.size(), before.size()) << "with the zone: " << line;
    } else {
        EXPECT_EQ(line, "2026-11-20 09:04:00");
    }
    EXPECT_EQ(row, WithoutZone(line));
}

TEST_F(Stamps, OfEveryWriteOfAnAppointmentAgree)
{
    Database& database = *SharedDatabase(host_.DataSource());
    const std::string before = Now();
    const Author author = AuthorAt(Now("-1 hours"), true);
    EXPECT_TRUE(ChangeStatus(database, 2, 4, author).IsDone());
    EXPECT_TRUE(ChangeStatus(database, 21, 2, author).IsDone());
    const std::string after = Now();
    for (const std::string& stamp : Texts("select alterado_em from agendamento where numero in (2, 21)"
                                          " union all select max(criada_em) from pre_venda"
                                          " where numero_do_agendamento = 2")) {
        if (TestsRunOnServer()) {
            EXPECT_LE(WithoutZone(before), stamp);
            EXPECT_LE(stamp, WithoutZone(after));
        } else {
            EXPECT_EQ(stamp, "2026-11-20 09:04:00");
        }
    }
}

TEST_F(Stamps, OfWhatLeavesTheShopAreOfTheSameClock)
{
    const std::string before = Now();
    const Author author = AuthorAt(Now("1 hour"), true);
    TellOfSource(host_.DataSource(), [&](Database& database) {
        AuditExport(database, author, 0, {});
        AuditPrint(database, author, 10, {});
        AuditRestore(database, author, "copia.bak");
    });
    const std::string after = Now();
    const std::vector<std::string> lines = LinesOfAudit();
    EXPECT_EQ(lines.size(), 3U);
    for (const std::string& line : lines) {
        if (TestsRunOnServer()) {
            EXPECT_LE(before, line);
            EXPECT_LE(line, after);
            EXPECT_EQ(line.size(), before.size()) << "with the zone: " << line;
        } else {
            EXPECT_EQ(line, "2026-11-20 09:04:00");
        }
    }
}

TEST_F(Stamps, AreThoseOfAClockThatWasSetOnPurposeOnBothEngines)
{
    Book("07/12/2026", AuthorAt("2031-01-02 03:04", false));
    EXPECT_EQ(LinesOfAudit(), std::vector<std::string>{"2031-01-02 03:04:00"});
    EXPECT_EQ(Texts("select incluido_em from agendamento where incluido_por = 'Lia'"),
              std::vector<std::string>{"2031-01-02 03:04:00"});
}

/// Two desks of a server, and its clock.
class PostgresqlStamps : public PostgresqlShop {
protected:
    std::string Now(const std::string& later = "0 hours") const
    {
        return shop_
            .Run("select to_char(clock_timestamp() + interval '" + later
                 + "', 'YYYY-MM-DD HH24:MI:SSTZH:TZM')")
            .front();
    }
    std::vector<std::string> Lines() const
    {
        return shop_.Run("select momento from auditoria order by codigo");
    }
    static void Book(Database& desk, const std::string& day, const std::string& shown)
    {
        const WriteAnswer answer = AddAppointments(desk, Bath(day), AuthorAt(shown, true));
        EXPECT_TRUE(answer.IsDone()) << answer.text;
    }
};

TEST_F(PostgresqlStamps, AreInTheirTrueOrderWhateverTheirClocksShow)
{
    const auto fast = OpenDatabase(shop_.Address()), slow = OpenDatabase(shop_.Address());
    Book(*fast, "07/12/2026", Now("1 hour"));
    Book(*slow, "08/12/2026", Now("-1 hours"));
    Book(*fast, "09/12/2026", Now("1 hour"));
    const std::vector<std::string> lines = Lines();
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_LE(lines.at(0), lines.at(1));
    EXPECT_LE(lines.at(1), lines.at(2));
    EXPECT_LE(lines.at(2), Now());
}

TEST_F(PostgresqlStamps, StandInTheZoneThatTheOwnerGivesTheDatabase)
{
    shop_.Run("alter database " + shop_.Name() + " set timezone to 'America/Noronha'");
    const auto desk = OpenDatabase(shop_.Address());
    const std::string before = Now();
    Book(*desk, "07/12/2026", "2001-02-03 04:05");
    const std::string line = Lines().at(0);
    EXPECT_TRUE(line.ends_with("-02:00")) << line;
    EXPECT_LE(before, line);
    EXPECT_LE(line, Now());
    EXPECT_EQ(shop_.Run("select max(incluido_em) from agendamento").at(0), WithoutZone(line));
}

TEST_F(PostgresqlStamps, AreNoBrokenRule)
{
    const auto desk = OpenDatabase(shop_.Address());
    std::vector<std::string> before, after;
    FindBrokenTexts(*desk, before);
    Book(*desk, "07/12/2026", Now());
    FindBrokenTexts(*desk, after);
    EXPECT_EQ(after, before);
}

} // namespace kova::family::test
