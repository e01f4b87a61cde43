#pragma once

#include "tests/support/sqlite_file.hpp"
#include "tests/window/receptionist.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace kova::window_test {

/// The application on a demonstration shop of its own, on 20/11/2026 from 09:00 on, with the user "Maria". A
/// test tells the receptionist what to do, runs the application, and looks into the database.
class Shop : public testing::Test {
protected:
    Shop();
    ~Shop() override;

    std::string Database() const { return (folder_ / "loja.db").string(); }

    /// Runs the application until the receptionist has left it.
    void Run();
    /// Rows of a selection, columns joined by "|".
    std::vector<std::string> Query(const std::string& statement) const;
    void Execute(const std::string& statement) const;
    /// The database as another program holds it open.
    std::unique_ptr<test::SqliteFile> OpenedByAnotherProgram() const;
    /// Where the user's documents lie: what is saved under its proposed name goes there.
    std::filesystem::path Documents() const { return folder_ / "Documents"; }
    /// The first value of the first row.
    std::string Value(const std::string& statement) const;

    /// Where the database stands.
    const std::filesystem::path& Folder() const { return folder_; }

    Receptionist* receptionist = nullptr;

private:
    std::filesystem::path folder_;
};

} // namespace kova::window_test
