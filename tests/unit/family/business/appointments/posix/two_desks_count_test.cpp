// Two processes change the same appointments at the same time, a thousand times each.

#include "tests/unit/family/business/appointments/posix/counting_desks.hpp"
#include "tests/unit/family/business/appointments/two_desk_fixture.hpp"

#include "family/data/sources/shared_database.hpp"

namespace kova::family::test {

class TwoCountingDesks : public BookingTest {
protected:
    static constexpr int Rows = 10, Rounds = 100;
    static constexpr int Edits = Rows * Rounds;

    /// Rows of the 1st of December in which nobody has counted yet.
    TwoCountingDesks()
    {
        Run("update funcionario set agendamentos_simultaneos = 0");
        for (int row = 0; row < Rows; ++row) {
            const auto desk = Simplified(On("01/12/2026"));
            desk->Set("Observacao", "0");
            desk->Set("CorDoAnimal", "0");
            EXPECT_EQ(Write(*desk), 0);
            numbers_.push_back(Stored + 1 + row);
        }
    }

    std::array<Counted, 2> CountIn(const Counter& first, const Counter& second)
    {
        CloseSharedDatabases();
        return CountOnTwoDesks(host_.DataSource(), {"01/12/2026", numbers_, {first, second}, Rounds});
    }

    std::vector<std::string> Different(const std::string& column)
    {
        return Texts("select distinct " + column + " from agendamento where numero > "
                     + std::to_string(Stored));
    }

    std::vector<Key> numbers_;
};

TEST_F(TwoCountingDesks, InDifferentFieldsLoseNoUpdate)
{
    const auto desks = CountIn({"Observacao", 1}, {"CorDoAnimal", 1});
    for (const Counted& desk : desks) {
        EXPECT_EQ(desk.done, Edits);
        EXPECT_EQ(desk.clashes, 0);
        EXPECT_EQ(desk.failed, 0);
    }
    EXPECT_GT(desks[0].merged + desks[1].merged, 0);
    EXPECT_EQ(Different("observacao"), std::vector<std::string>{std::to_string(Rounds)});
    EXPECT_EQ(Different("cor_do_animal"), std::vector<std::string>{std::to_string(Rounds)});
    EXPECT_EQ(Different("cast(versao as text)"), std::vector<std::string>{std::to_string(1 + 2 * Rounds)});
}

TEST_F(TwoCountingDesks, InTheSameFieldLoseNoUpdateEither)
{
    const auto desks = CountIn({"Observacao", 1}, {"Observacao", 1000});
    for (const Counted& desk : desks) {
        EXPECT_EQ(desk.done, Edits);
        EXPECT_EQ(desk.failed, 0);
    }
    EXPECT_GT(desks[0].clashes + desks[1].clashes, 0);
    EXPECT_EQ(Different("observacao"), std::vector<std::string>{std::to_string(1001 * Rounds)});
}

} // namespace kova::family::test
