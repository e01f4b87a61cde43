#pragma once

#include "agenda/contracts/component_server.hpp"
#include "agenda/contracts/support/paged_record_set.hpp"
#include "family/data/engine/database.hpp"
#include "system/path_text.hpp"
#include "system/temporary_folder.hpp"
#include "tests/support/postgres_server.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kova::family::test {

/// A folder with an accent in its name that goes with its owner, writable again before.
class TemporaryFolder {
public:
    TemporaryFolder() = default;
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string operator/(const std::string& name) const
    {
        return system::TextOf(Path() / system::PathOf(name));
    }
    const std::filesystem::path& Path() const { return folder_.Path(); }

private:
    system::TemporaryFolder folder_{"salão"};
};

std::string ContentOf(const std::string& path);
void WriteContent(const std::string& path, const std::string& content);

/// A host with a data source and nothing else: what asks for its platform fails.
class TestHost : public ServerHost {
public:
    explicit TestHost(std::string dataSource) : dataSource_(std::move(dataSource)) { }

    bool Register(const ClassRegistration& registration) override
    {
        registered[registration.className] = registration.classId;
        return true;
    }
    bool Unregister(std::string_view className) override
    {
        registered.erase(std::string(className));
        return true;
    }
    Platform& GetPlatform() override { throw Failure(FailureNumber::NoObject); }
    std::string DataSource() const override { return dataSource_; }

    std::map<std::string, std::string> registered;

private:
    std::string dataSource_;
};

/// Whether the databases of the fixtures lie on a server, which the environment variable KOVARIS_TEST_SERVER
/// tells; else they are SQLite files.
bool TestsRunOnServer();

/// Makes the known shop there.
void MakeShop(const std::string& dataSource);

/// From now on the connection may write rows that refer to nothing, as another program's could.
void UncheckReferences(soci::session& session);
/// Runs a statement on such a connection.
void RunUnchecked(const std::string& dataSource, const std::string& statement);
/// From now on the schema takes rows that break its rules, as one does that was made before it had them.
void LiftRulesOf(const std::string& dataSource);

/// A database with the known shop that goes with its owner.
class ShopDatabase {
public:
    ShopDatabase();
    const std::string& DataSource() const { return dataSource_; }

private:
    TemporaryFolder folder_;
    std::optional<kova::test::PostgresDatabase> onServer_;
    std::string dataSource_;
};

/// A shop with eight known appointments on 20/11/2026 and one on 21/11/2026; see shop_fixture.cpp.
class ShopTest : public testing::Test {
protected:
    ShopTest();
    ~ShopTest() override;

    /// Numbers of the appointments that a selection of 20/11/2026 finds, in its order.
    std::vector<int> Find(const std::string& text, Long status = 0, Long type = 0, Long employee = 0,
                          Long transport = 0);
    std::vector<int> FindOn(const std::string& date);
    static std::vector<int> NumbersOf(RecordSet& records);

    /// The record set of the whole day, standing on that appointment.
    RecordSetRef Appointment(int number);

    TemporaryFolder folder_;
    ShopDatabase shop_;
    TestHost host_;
};

/// The arguments of Selecionar for a whole selection.
std::vector<Argument> DayArguments(const std::string& date, const std::string& text = "", Long status = 0,
                                   Long type = 0, Long employee = 0, Long transport = 0);

RecordSetRef ResultOf(Component& component);

} // namespace kova::family::test
