#include "family/data/engine/database_failure.hpp"
#include "family/data/engine/server_client.hpp"
#include "tests/support/postgres_server.hpp"

#include <gtest/gtest.h>
#include <soci/soci.h>
#include <soci/sqlite3/soci-sqlite3.h>

#include <algorithm>
#include <array>
#include <thread>

namespace kova::family {

TEST(ServerClient, IsOneForAllThreadsThatAskForItAtOnce)
{
    std::array<const ServerClient*, 8> found{};
    {
        std::array<std::jthread, found.size()> asking;
        for (std::size_t at = 0; at < found.size(); ++at)
            asking[at] = std::jthread([&one = found[at]] { one = &RequireServerClient(); });
    }
    EXPECT_NE(found.front(), nullptr);
    EXPECT_EQ(std::count(found.begin(), found.end(), found.front()), static_cast<long>(found.size()));
    EXPECT_EQ(LoadedServerClient(), found.front());
}

TEST(ServerClient, ReadsAnAddressByItsKeywords)
{
    const auto parts = RequireServerClient().Read("postgresql://carla@servidor:1/loja?sslmode=require");
    ASSERT_TRUE(parts);
    EXPECT_EQ(parts->at("user"), "carla");
    EXPECT_EQ(parts->at("host"), "servidor");
    EXPECT_EQ(parts->at("dbname"), "loja");
    EXPECT_EQ(parts->at("sslmode"), "require");
    EXPECT_EQ(parts->count("password"), 0U);
    EXPECT_FALSE(RequireServerClient().Read("postgresql://servidor/loja?cor=azul"));
}

TEST(ServerClient, TakesNoFailureOfAFileForAServers)
{
    EXPECT_FALSE(RequireServerClient().StateOf(soci::sqlite3_soci_error("full", SQLITE_FULL)));
    EXPECT_EQ(TranslatedFailure("loja.db", soci::sqlite3_soci_error("full", SQLITE_FULL)).GetFault(),
              Fault::Shortage);
}

TEST(ServerClient, KnowsTheStateOfWhatPostgresqlReports)
{
    const kova::test::PostgresDatabase database(kova::test::PostgresServer::Shared());
    soci::session session(RequireServerClient().BackEnd(), database.Address());
    try {
        session << "select 1 / 0";
        FAIL() << "nothing was reported";
    } catch (const soci::soci_error& failure) {
        EXPECT_EQ(RequireServerClient().StateOf(failure), "22012");
    }
}

} // namespace kova::family
