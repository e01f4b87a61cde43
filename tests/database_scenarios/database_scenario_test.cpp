// The module over the reference components: each script of this folder on a new copy of the known shop, on a
// file and on a server. Both give the transcript that lies beside the script.

#include "tests/database_scenarios/shop/known_shop.hpp"
#include "tests/support/postgres_server.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace kova::database_scenarios {

namespace {

namespace fs = std::filesystem;

/// The scripts' names, in the order of the alphabet.
std::vector<std::string> Scripts()
{
    std::vector<std::string> names;
    for (const auto& file : fs::directory_iterator(SCRIPTS))
        if (file.path().extension() == ".scenario")
            names.push_back(file.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

class DatabaseScenario : public testing::TestWithParam<std::string> {
protected:
    DatabaseScenario()
    {
        std::string pattern = (fs::temp_directory_path() / "roteiros-XXXXXX").string();
        folder_ = mkdtemp(pattern.data());
    }
    ~DatabaseScenario() override { fs::remove_all(folder_); }

    std::string NewFile() const { return (folder_ / "loja.db").string(); }

    /// What differs between the transcript and what the script prints on that database; "" where they agree.
    std::string DifferenceOn(const std::string& database) const
    {
        const std::string script = std::string(SCRIPTS) + "/" + GetParam() + ".scenario";
        const std::string command = std::string("'") + CHECK + "' '" + RUNNER + "' '" + script
            + "' --database '" + database + "' 2>&1";
        std::string printed;
        FILE* run = popen(command.c_str(), "r");
        for (int character = fgetc(run); character != EOF; character = fgetc(run))
            printed += static_cast<char>(character);
        const int status = pclose(run);
        return status == 0 ? "" : "ended with " + std::to_string(status) + "\n" + printed;
    }

private:
    fs::path folder_;
};

TEST_P(DatabaseScenario, RunsOnAFile)
{
    MakeKnownShop(NewFile());
    EXPECT_EQ(DifferenceOn(NewFile()), "");
}

TEST_P(DatabaseScenario, RunsOnPostgresql)
{
    test::PostgresServer& server = test::PostgresServer::Shared();
    const test::PostgresDatabase shop(server, server.Model("shop", MakeKnownShop));
    EXPECT_EQ(DifferenceOn(shop.Address()), "");
}

INSTANTIATE_TEST_SUITE_P(Script, DatabaseScenario, testing::ValuesIn(Scripts()),
                         [](const auto& script) { return script.param; });

} // namespace

} // namespace kova::database_scenarios
