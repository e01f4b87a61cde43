// Desks that write at once continue one chain, each line behind those that were kept before it.

#include "tests/unit/family/shop_fixture.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/checks/audit_check.hpp"
#include "family/data/engine/safe_write.hpp"
#include "family/data/sources/data_source.hpp"

#include <algorithm>
#include <thread>

namespace kova::family::test {

namespace {

constexpr Key LinesOfEach = 1000;

/// What the lines tell, in the order of the chain.
struct Chained {
    std::vector<Key> places, keys;
    std::vector<std::string> desks, moments;
};

Chained Read(const std::string& source)
{
    const auto database = OpenForReading(source);
    Chained all;
    Key place = 0, key = 0;
    std::string desk, moment;
    soci::statement lines =
        (database->Session().prepare << "select e.ordem, a.chave, a.posto, a.momento from elo_da_auditoria e"
                                        " join auditoria a on a.codigo = e.codigo_da_linha order by e.ordem",
         soci::into(place), soci::into(key), soci::into(desk), soci::into(moment));
    lines.execute();
    while (lines.fetch()) {
        all.places.push_back(place);
        all.keys.push_back(key);
        all.desks.push_back(desk);
        all.moments.push_back(moment);
    }
    return all;
}

} // namespace

class ChainOfDesks : public ShopTest {
protected:
    /// One after another, each in a transaction of its own; every tenth is not kept.
    void WriteAt(const std::string& desk) const
    {
        const auto database = OpenDatabase(host_.DataSource());
        const Author author{.code = "7",
                            .name = "Lia",
                            .moment = "2026-11-20 09:04:05",
                            .desk = desk,
                            .isByComputersClock = true};
        for (Key key = 1; key <= LinesOfEach; ++key) {
            WriteSafely(*database, [&] {
                AuditRemoval(*database, author, "servico", key, AuditValues().Add("nome", std::string("Lã")));
                return key % 10 != 0;
            });
        }
    }
};

TEST_F(ChainOfDesks, IsOneInTheTrueOrderWhereBothWriteAtOnce)
{
    {
        const std::jthread first([this] { WriteAt("BALCAO-1"); }), second([this] { WriteAt("BALCAO-2"); });
    }
    EXPECT_EQ(FindBrokenChain(*OpenForReading(host_.DataSource())), std::vector<std::string>{});
    const Chained all = Read(host_.DataSource());
    constexpr std::size_t Kept = 2 * LinesOfEach * 9 / 10;
    ASSERT_EQ(all.keys.size(), Kept);
    EXPECT_EQ(all.places.back() - all.places.front(), static_cast<Key>(Kept) - 1) << "no place is left out";
    // A moment is that of a transaction's beginning, a place that of its end: of two desks' transactions that
    // ran at the same time, the one that ended later may have begun earlier.
    for (const char* desk : {"BALCAO-1", "BALCAO-2"}) {
        Key former = 0;
        std::string formerMoment;
        for (std::size_t at = 0; at < Kept; ++at) {
            if (all.desks[at] != desk)
                continue;
            EXPECT_EQ(all.keys[at], former + (former % 10 == 9 ? 2 : 1));
            EXPECT_LE(formerMoment, all.moments[at]);
            former = all.keys[at];
            formerMoment = all.moments[at];
        }
        EXPECT_EQ(former, LinesOfEach - 1);
    }
}

} // namespace kova::family::test
