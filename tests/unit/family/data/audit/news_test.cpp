// What a desk gets to know of what others write, on either kind of storage.

#include "tests/unit/family/business/appointments/two_desk_fixture.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/audit/news.hpp"
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

TEST_F(NewsOfDesks, ComeOverASocketFromServersAlone)
{
    EXPECT_EQ(news_.Socket() != News::NoSocket, TestsRunOnServer());
    EXPECT_FALSE(news_.Await(0)) << "nobody has written";
}

} // namespace kova::family::test
