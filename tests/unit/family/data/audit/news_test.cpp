// What a desk gets to know of what others write, on either kind of storage.

#include "tests/unit/family/business/appointments/two_desk_fixture.hpp"

#include "family/business/shop/database_component.hpp"
#include "family/data/audit/audit.hpp"
#include "family/data/audit/days_of_news.hpp"
#include "family/data/audit/news.hpp"
#include "family/data/audit/own_lines.hpp"
#include "family/data/engine/safe_write.hpp"
#include "family/data/sources/data_source.hpp"

#include <algorithm>
#include <thread>

namespace kova::family::test {

using List = std::vector<std::string>;

class NewsOfDesks : public TwoDesksTest {
protected:
    static constexpr int Soon = 30'000;

    /// "TABLE KEY USER" of each; where a server has it, once it has said so.
    List Told() { return Told(news_); }
    static List Told(News& news)
    {
        List told;
        for (const NewsOfRow& row : news.Look())
            told.push_back(row.table + " " + std::to_string(row.key) + " " + row.user);
        return told;
    }
    List ToldOnceThereIsSome()
    {
        EXPECT_EQ(news_.Await(Soon), TestsRunOnServer());
        return Told();
    }

    std::shared_ptr<Database> listening_ = OpenDatabase(host_.DataSource());
    News news_{*listening_};
};

TEST_F(NewsOfDesks, AreWhatOthersHaveWrittenSinceTheLastLook)
{
    EXPECT_EQ(Told(), List{});
    OtherSetsStatus(FullNumber, 3);
    EXPECT_EQ(ToldOnceThereIsSome(), List{"agendamento 24 8 - Marcos"});
    EXPECT_EQ(Told(), List{});
    OtherDeletes(SimplifiedNumber);
    ASSERT_EQ(Change(1, 2), 0);
    List told = ToldOnceThereIsSome();
    while (told.size() < 2) {
        for (const std::string& more : ToldOnceThereIsSome())
            told.push_back(more);
    }
    EXPECT_EQ(told, (List{"agendamento 25 8 - Marcos", "agendamento 1 7 - Lia \"Lili\""}));
}

TEST_F(NewsOfDesks, AreNotWhatWasTakenBack)
{
    WriteSafely(*otherDesk_, [&] {
        AuditRemoval(*otherDesk_, marcos_, "animal", 7, {});
        return false;
    });
    OtherSetsStatus(FullNumber, 3);
    EXPECT_EQ(ToldOnceThereIsSome(), List{"agendamento 24 8 - Marcos"});
}

TEST_F(NewsOfDesks, OfManyWritersAreCompleteAndInTheOrderInWhichTheyWereKept)
{
    constexpr std::size_t Writers = 4, Writes = 15;
    std::vector<std::jthread> writers;
    for (std::size_t writer = 0; writer < Writers; ++writer)
        writers.emplace_back([&, writer] {
            const std::shared_ptr<Database> database = OpenDatabase(host_.DataSource());
            for (std::size_t write = 0; write < Writes; ++write)
                WriteSafely(*database, [&] {
                    AuditRemoval(*database, marcos_, "animal", static_cast<Key>(1000 * writer + write), {});
                    return true;
                });
        });
    std::vector<Key> told;
    while (told.size() < Writers * Writes) {
        for (const NewsOfRow& row : news_.Look())
            told.push_back(row.key);
        if (TestsRunOnServer() && told.size() < Writers * Writes && !news_.Await(Soon))
            break;
    }
    writers.clear();
    std::vector<Key> kept;
    for (const std::string& key : Texts("select cast(a.chave as text) from elo_da_auditoria e"
                                        " join auditoria a on a.codigo = e.codigo_da_linha"
                                        " where a.tabela = 'animal' order by e.ordem"))
        kept.push_back(std::stoll(key));
    EXPECT_EQ(told, kept);
    EXPECT_EQ(Told(), List{});
}

TEST_F(NewsOfDesks, AreCaughtUpWithWhenTheConnectionWasLost)
{
    int process = 0;
    if (TestsRunOnServer())
        listening_->Session() << "select pg_backend_pid()", soci::into(process);
    OtherSetsStatus(FullNumber, 3);
    if (TestsRunOnServer())
        otherDesk_->Session() << "select pg_terminate_backend(" + std::to_string(process) + ", 30000)";
    OtherDeletes(SimplifiedNumber);
    // The end of the connection takes its time to arrive.
    EXPECT_EQ(ToldOnceThereIsSome(), (List{"agendamento 24 8 - Marcos", "agendamento 25 8 - Marcos"}));
    OtherSetsStatus(FullNumber, 1);
    EXPECT_EQ(ToldOnceThereIsSome(), List{"agendamento 24 8 - Marcos"}) << "and are heard again";
}

TEST_F(NewsOfDesks, OfAnAppointmentTellItsDaysBeforeAndFromThenOn)
{
    using Days = std::vector<DaysOfAppointment>;
    const DaysOfAppointment day{"2026-12-01", "2026-12-01"}, later{"2026-12-03", "2026-12-04"};
    std::vector<Days> told;
    const auto look = [&] {
        EXPECT_EQ(news_.Await(Soon), TestsRunOnServer());
        for (const NewsOfRow& row : news_.Look())
            told.push_back(DaysOf(row));
    };
    OtherSetsStatus(FullNumber, 3);
    look();
    OtherChanges(FullNumber, [](AppointmentInput& input) {
        input.startDate = "03/12/2026";
        input.endDate = "04/12/2026";
    });
    look();
    OtherDeletes(FullNumber);
    look();
    EXPECT_EQ(told, (std::vector<Days>{{day}, {day, later}, {later}}));
}

TEST_F(NewsOfDesks, TellTheDaysOfTheTimeAlsoWhereTheyAreHeardTogether)
{
    using Days = std::vector<DaysOfAppointment>;
    const DaysOfAppointment day{"2026-12-01", "2026-12-01"}, later{"2026-12-03", "2026-12-03"};
    OtherSetsStatus(FullNumber, 3);
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.startDate = input.endDate = "03/12/2026"; });
    OtherSetsStatus(FullNumber, 1);
    OtherDeletes(FullNumber);
    std::vector<Days> told;
    while (told.size() < 4) {
        ASSERT_EQ(news_.Await(Soon), TestsRunOnServer());
        for (const NewsOfRow& row : news_.Look())
            told.push_back(DaysOf(row));
    }
    EXPECT_EQ(told, (std::vector<Days>{{day}, {day, later}, {later}, {later}}));
}

TEST_F(NewsOfDesks, OfAnythingElseTellNoDays)
{
    WriteSafely(*otherDesk_, [&] {
        AuditRemoval(*otherDesk_, marcos_, "animal", 7, {});
        return true;
    });
    ASSERT_EQ(news_.Await(Soon), TestsRunOnServer());
    const std::vector<NewsOfRow> told = news_.Look();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(DaysOf(told.front()), std::vector<DaysOfAppointment>());
}

TEST_F(NewsOfDesks, AreKnownAsOwnByTheirLines)
{
    OtherSetsStatus(FullNumber, 3);
    ASSERT_EQ(news_.Await(Soon), TestsRunOnServer());
    const std::vector<NewsOfRow> told = news_.Look();
    ASSERT_EQ(told.size(), 1U);
    const Key line = told.front().line;
    const std::string& source = listening_->Path();
    DatabaseComponent component(host_);
    const auto wrote = [&](Key number) {
        return component
            .Call("GravouALinha", {static_cast<Double>(line), "agendamento", static_cast<Double>(number)})
            .ToBoolean();
    };
    EXPECT_TRUE(IsOwnLine(source, {line, "agendamento", FullNumber}));
    EXPECT_TRUE(wrote(FullNumber));
    EXPECT_FALSE(wrote(SimplifiedNumber)) << "the code of a line that was taken back, and another's now";
    EXPECT_FALSE(IsOwnLine(source, {line, "animal", FullNumber}));
    EXPECT_FALSE(IsOwnLine(source, {line + 1, "agendamento", FullNumber}));
}

TEST_F(NewsOfDesks, ComeOverASocketFromServersAlone)
{
    EXPECT_EQ(news_.Socket() != News::NoSocket, TestsRunOnServer());
    EXPECT_FALSE(news_.Await(0)) << "nobody has written";
}

} // namespace kova::family::test
