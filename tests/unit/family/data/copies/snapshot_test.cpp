#include "tests/unit/family/shop_fixture.hpp"

#include "family/data/engine/snapshot.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/rows/rows.hpp"
#include "family/data/rows/table_layouts.hpp"
#include "family/data/sources/data_source.hpp"

namespace kova::family::test {

class SnapshotOfAShop : public ShopTest { };

TEST_F(SnapshotOfAShop, ShowsOneMomentWhileADeskGoesOnWriting)
{
    const auto reader = OpenForReading(host_.DataSource());
    const auto desk = OpenDatabase(host_.DataSource());
    const std::vector<TableCount> before = CountRows(*reader);
    {
        const Snapshot snapshot(*reader);
        EXPECT_EQ(CountRows(*reader), before);
        Insert(*desk, UserRow{7, "Carla"});
        EXPECT_EQ(CountRows(*reader), before);
    }
    EXPECT_NE(CountRows(*reader), before);
}

} // namespace kova::family::test
