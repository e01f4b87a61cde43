#pragma once

#include "tests/support/postgres_server.hpp"
#include "tests/support/sqlite_file.hpp"
#include "tests/window/receptionist.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kova::window_test {

/// Where the shop's database lies.
enum class Place { File, Server };

/// A file, or a server where the environment variable KOVARIS_TEST_SERVER is set.
Place UsualPlace();

/// The application on a demonstration shop of its own, on 20/11/2026 from 09:00 on, with the user "Antônia".
/// A test tells the receptionist what to do, runs the application, and looks into the database.
class Shop : public testing::Test {
protected:
    explicit Shop(Place place = UsualPlace());
    ~Shop() override;

    /// The data source of the application.
    std::string Database() const { return onServer_ ? onServer_->Address() : File(); }

    /// Runs the application until the receptionist has left it.
    void Run();
    /// Rows of a selection that both engines understand, columns joined by "|".
    std::vector<std::string> Query(const std::string& statement) const;
    void Execute(const std::string& statement) const;
    /// The file as another program holds it open.
    std::unique_ptr<test::SqliteFile> OpenedByAnotherProgram() const;
    /// Where the user's documents lie: what is saved under its proposed name goes there.
    std::filesystem::path Documents() const { return folder_ / "Documents"; }
    /// The first value of the first row.
    std::string Value(const std::string& statement) const;

    /// Where the database stands.
    const std::filesystem::path& Folder() const { return folder_; }

    Receptionist* receptionist = nullptr;

private:
    std::string File() const { return (folder_ / "loja.db").string(); }

    std::filesystem::path folder_;
    std::optional<test::PostgresDatabase> onServer_;
};

} // namespace kova::window_test
