// A person is made anonymous while other desks of a server write.

#include "tests/unit/family/server_fixture.hpp"

#include "family/data/sources/data_source.hpp"
#include "family/privacy/anonymise.hpp"

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

} // namespace kova::family::test
