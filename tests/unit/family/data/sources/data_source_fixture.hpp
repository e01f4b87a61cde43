#pragma once

#include "tests/unit/family/shop_fixture.hpp"

#include "family/data/sources/data_source.hpp"

#include <algorithm>

namespace kova::family::test {

class DataSource : public testing::Test {
protected:
    /// The refusal names the path, holds the words, and leaves the folder's listing as it was.
    void ExpectRefused(const std::string& path, const std::string& words)
    {
        const auto before = Listing();
        const auto refusal = CheckDataSource(path);
        ASSERT_TRUE(refusal.has_value());
        EXPECT_NE(refusal->find(path), std::string::npos) << *refusal;
        EXPECT_NE(refusal->find(words), std::string::npos) << *refusal;
        EXPECT_THROW(OpenDatabase(path), Failure);
        EXPECT_EQ(Listing(), before);
    }

    std::vector<std::string> Listing()
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_.Path()))
            names.push_back(system::TextOf(entry.path()));
        std::sort(names.begin(), names.end());
        return names;
    }

    std::string MakeEmptyShop(const std::string& name)
    {
        CreateDatabase(folder_ / name, [](Database&) {});
        return folder_ / name;
    }

    TemporaryFolder folder_;
};

} // namespace kova::family::test
