// Texts in memory against a twin that looks at every one of them.

#include "family/data/selections/text_rows.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

namespace kova::family::test {

namespace {

using Order = TextRows::Order;

/// Keeps the rows as they come and does everything by going through all of them.
class Twin {
public:
    explicit Twin(Order order) : order_(order) { }

    void Put(const TextOfRow& row) { rows_.push_back(row); }
    void Remove(Key key)
    {
        std::erase_if(rows_, [&](const TextOfRow& row) { return row.key == key; });
    }

    std::vector<TextOfRow> InOrder() const
    {
        std::vector<TextOfRow> rows = rows_;
        std::ranges::stable_sort(rows, [this](const TextOfRow& one, const TextOfRow& other) {
            return TraitsOf(one) < TraitsOf(other);
        });
        return rows;
    }
    const std::vector<TextOfRow>& Rows() const { return rows_; }

private:
    std::tuple<std::string, Key, Key> TraitsOf(const TextOfRow& row) const
    {
        switch (order_) {
        case Order::ByFirstLine: return {row.text.substr(0, row.text.find('\n')), row.key, 0};
        case Order::ByOwner: return {"", row.owner, row.key};
        case Order::AsAdded: break;
        }
        return {};
    }

    const Order order_;
    std::vector<TextOfRow> rows_;
};

/// Rows and parts of few different letters, so that much is alike; the same at every run.
class RandomTexts {
public:
    explicit RandomTexts(unsigned seed) : engine_(seed) { }

    int Below(int bound) { return static_cast<int>(engine_() % static_cast<unsigned>(bound)); }
    std::string Text(int longest)
    {
        static const std::vector<std::string> letters = {"a",  "b", "z", "1", "9",  " ",    "@",   "-",
                                                         "\"", "%", "ß", "ж", "あ", "\x01", "\xff"};
        std::string text;
        for (int left = Below(longest + 1); left > 0; --left)
            text += letters[static_cast<std::size_t>(Below(static_cast<int>(letters.size())))];
        return text;
    }
    TextOfRow Row(Key key)
    {
        std::string text = Text(3);
        for (int left = Below(4); left > 0; --left)
            text += "\n" + Text(40);
        return {key, Below(12), Below(4) == 0, text};
    }

private:
    std::mt19937 engine_;
};

class RowsOfTexts : public testing::TestWithParam<Order> {
protected:
    void AddMany(int count)
    {
        for (Key key = 1; key <= count; ++key) {
            const TextOfRow row = random_.Row(3 * key);
            rows_.Add(row);
            twin_.Put(row);
        }
        rows_.Sort();
    }

    void ChangeOne()
    {
        const Key key = random_.Below(500);
        rows_.Remove(key);
        twin_.Remove(key);
        if (random_.Below(3) == 0)
            return;
        const TextOfRow row = random_.Row(key);
        rows_.Insert(row);
        twin_.Put(row);
    }

    void ExpectSameRows()
    {
        const std::vector<TextOfRow> expected = twin_.InOrder();
        ASSERT_EQ(rows_.Count(), expected.size());
        for (TextRows::Place place = 0; place < expected.size(); ++place) {
            ASSERT_EQ(rows_.KeyAt(place), expected[place].key) << place;
            EXPECT_EQ(rows_.OwnerAt(place), expected[place].owner);
            EXPECT_EQ(rows_.IsHidden(place), expected[place].isHidden);
            EXPECT_EQ(rows_.TextAt(place), expected[place].text);
            EXPECT_EQ(rows_.PlaceOf(expected[place].key), place);
        }
        EXPECT_EQ(rows_.PlaceOf(100000), std::nullopt);
    }

    void ExpectSamePlaces(const std::vector<std::string>& parts)
    {
        const std::vector<TextOfRow> all = twin_.InOrder();
        std::vector<TextRows::Place> expected;
        for (TextRows::Place place = 0; place < all.size(); ++place) {
            const auto isIn = [&](const std::string& part) {
                return all[place].text.find(part) != std::string::npos;
            };
            if (std::ranges::any_of(parts, isIn))
                expected.push_back(place);
        }
        EXPECT_EQ(rows_.PlacesWithAny(parts), expected);
        if (parts.size() == 1) {
            EXPECT_EQ(rows_.PlacesWith(parts.front()), expected) << parts.front();
        }
    }

    RandomTexts random_{20261120};
    TextRows rows_{GetParam()};
    Twin twin_{GetParam()};
};

} // namespace

TEST_P(RowsOfTexts, StandInTheirOrderThroughAllChanges)
{
    AddMany(100);
    ExpectSameRows();
    for (int change = 0; change < 600; ++change) {
        ChangeOne();
        if (change % 20 == 0)
            ExpectSameRows();
    }
    ExpectSameRows();
}

TEST_P(RowsOfTexts, AreThoseThatHoldThePart)
{
    AddMany(150);
    for (int round = 0; round < 400; ++round) {
        ExpectSamePlaces({random_.Text(3)});
        ExpectSamePlaces({random_.Text(2), random_.Text(4)});
        ChangeOne();
    }
    ExpectSamePlaces({});
    ExpectSamePlaces({""});
    ExpectSamePlaces({"", "a"});
}

TEST_P(RowsOfTexts, AreFoundByTheirKeysBesideTheirTexts)
{
    AddMany(60);
    for (int round = 0; round < 100; ++round) {
        const std::string part = random_.Text(2);
        const std::vector<Key> others = {random_.Below(200), random_.Below(200)};
        std::vector<TextRows::Place> expected = rows_.PlacesWith(part);
        for (const Key key : others) {
            if (const auto place = rows_.PlaceOf(key))
                expected.push_back(*place);
        }
        std::ranges::sort(expected);
        expected.erase(std::unique(expected.begin(), expected.end()), expected.end());
        EXPECT_EQ(rows_.PlacesWith(part, others), expected);
        ChangeOne();
    }
}

TEST_P(RowsOfTexts, AreFoundByManyKeysAtOnce)
{
    AddMany(40);
    std::vector<Key> keys;
    std::vector<TextRows::Place> expected;
    for (Key key = -2; key < 130; key += 1 + random_.Below(3)) {
        for (int times = random_.Below(3); times >= 0; --times) {
            keys.push_back(key);
            if (const auto place = rows_.PlaceOf(key))
                expected.push_back(*place);
        }
    }
    EXPECT_EQ(rows_.PlacesOf(keys), expected);
    EXPECT_TRUE(rows_.PlacesOf({}).empty());
}

TEST_P(RowsOfTexts, AreNoneAtFirstAndWhenAllAreGone)
{
    ExpectSamePlaces({""});
    AddMany(20);
    for (Key key = 0; key <= 60; ++key) {
        rows_.Remove(key);
        twin_.Remove(key);
    }
    ExpectSameRows();
    ExpectSamePlaces({""});
    AddMany(5);
    ExpectSameRows();
    rows_.Clear();
    EXPECT_EQ(rows_.Count(), 0U);
    EXPECT_EQ(rows_.PlaceOf(3), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(EveryOrder, RowsOfTexts,
                         testing::Values(Order::AsAdded, Order::ByFirstLine, Order::ByOwner),
                         [](const auto& order) {
                             return order.param == Order::AsAdded    ? "AsAdded"
                                 : order.param == Order::ByFirstLine ? "ByFirstLine"
                                                                     : "ByOwner";
                         });

} // namespace kova::family::test
