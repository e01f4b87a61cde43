#pragma once

#include "tests/support/data_places.hpp"
#include "tests/unit/host/components/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <vector>

namespace kova::data::test {

/// A folder, a database that has the schema and nothing else, and a program that runs on it on 20/11/2026 at
/// 09:00. The databases are files in the folder or lie on a server.
class ImportTest : public testing::Test {
protected:
    ImportTest();

    /// Answers the program's status; Output() and Error() are what it has written.
    int Run(const std::vector<std::string>& words);
    /// Writes the content to a file that Carla imports into the database.
    int Import(const std::string& name, const std::string& content, std::vector<std::string> options = {});
    /// The same; `act` runs in the midst of it, when the program has told that text about its progress. Blank
    /// lines at the end of the file have it tell any.
    int ImportWhile(const std::string& name, const std::string& content, const std::string& told,
                    std::function<void()> act, const std::vector<std::string>& options = {});
    /// Imports files without a complaint: types 1 and 4, services 1 and 2 (a clinical one and a bath),
    /// employees 1 and 2 (one appointment at a time, and two), customers 10 and 11, animals 50 and 51.
    void ImportShop();

    /// What an export of that register writes, without its byte order mark.
    std::string Exported(const std::string& name, const std::string& database);
    std::string Exported(const std::string& name) { return Exported(name, Database()); }

    std::string Output() const { return output_.str(); }
    /// The same without what an import tells of the way back.
    std::string Answer() const;
    std::string Error() const { return error_.str(); }
    const std::string& Database() const { return database_; }
    std::string Place(const std::string& name) { return places_.Place(name); }
    std::string File(const std::string& name) const { return folder_.File(name); }
    void MakeEmptyDatabase(const std::string& path);
    /// The one column of all rows as texts, joined by commas; "" for a Null.
    std::string Ask(const std::string& query);

private:
    kova::test::TemporaryFolder folder_;
    kova::test::DataPlaces places_{folder_.File("")};
    const std::string database_ = places_.Place("loja");
    std::ostringstream output_, error_;
    int exports_ = 0;
};

} // namespace kova::data::test
