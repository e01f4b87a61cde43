// Where the engines look for the hours at which an employee is booked, whatever they know of the
// appointments: a search that goes by the beginning reads the whole past, while everybody else waits to
// write.

#include "tests/unit/family/plan_fixture.hpp"

#include "family/data/sources/shared_database.hpp"
#include "family/data/stores/booked_times.hpp"

#include <algorithm>

namespace kova::family::test {

class BookedTimesPlan : public BigShopTest, public testing::WithParamInterface<int> {
protected:
    BookedTimesPlan()
    {
        AddAppointments(GetParam());
        FindBookedTimes(Data(), {2, 0, "2026-11-27", "", "2026-11-27"});
    }

    static std::string PlanOfIt(const std::vector<StatementPlan>& plans)
    {
        return PlanWith("data_inicial || '' >", plans);
    }

    static void ExpectItGoesByTheEnd(const std::vector<StatementPlan>& plans)
    {
        const std::string plan = PlanOfIt(plans);
        EXPECT_FALSE(ReadsWholeTable(plan)) << plan;
        EXPECT_EQ(plan.find("agendamento_por_inicio"), std::string::npos) << plan;
        // One search has both ends; the other goes through what ends on a later day than it begins.
        const bool onServer = TestsRunOnServer();
        EXPECT_NE(plan.find("agendamento_por_termino"), std::string::npos) << plan;
        EXPECT_NE(plan.find(onServer ? "(data_final <= " : "data_final>? AND data_final<?"),
                  std::string::npos)
            << plan;
        EXPECT_NE(plan.find("agendamento_de_varios_dias"), std::string::npos) << plan;
    }
};

TEST_P(BookedTimesPlan, GoesByTheEmployeesOwnEndsWhateverWasCountedWhenTheShopWasSmall)
{
    const std::string plan = PlanOfIt(PlansOf(Data()));
    EXPECT_FALSE(ReadsWholeTable(plan)) << plan;
    EXPECT_EQ(plan.find("agendamento_por_inicio"), std::string::npos) << plan;
}

TEST_P(BookedTimesPlan, GoesByTheEmployeesOwnEndsBeforeAnythingWasCounted)
{
    ForgetWhatWasCounted();
    ExpectItGoesByTheEnd(PlansOf(Data()));
    ExpectItGoesByTheEnd(PlansForValues(Data()));
}

TEST_P(BookedTimesPlan, GoesByTheEmployeesOwnEndsAfterTheAppointmentsWereCounted)
{
    Analyse();
    ExpectItGoesByTheEnd(PlansOf(Data()));
    ExpectItGoesByTheEnd(PlansForValues(Data()));
    AnalyseALittle();
    ExpectItGoesByTheEnd(PlansOf(Data()));
    if (TestsRunOnServer())
        return;
    for (const char* ofSeveralDays : {"", "1 1 1 1", "5000 80 2 1"}) {
        SCOPED_TRACE(ofSeveralDays);
        ActAsIfThereWere(1'000'000, GetParam(), ofSeveralDays);
        ExpectItGoesByTheEnd(PlansOf(Data()));
    }
}

INSTANTIATE_TEST_SUITE_P(Employees, BookedTimesPlan, testing::Values(1, 5, 15, 16, 65));

/// What is found with the two searches.
class BookedTimes : public BookingTest {
protected:
    void Add(const std::string& from, const std::string& until, int status = 1, int employee = 2)
    {
        Run("insert into agendamento (data_inicial, hora_inicial, data_final, hora_final, "
            "tipo_do_agendamento,"
            " nome_do_cliente, nome_do_animal, numero_do_tipo_de_servico, codigo_do_servico,"
            " codigo_do_funcionario, situacao, incluido_em, incluido_por) values ('"
            + from + "', '09:00', '" + until + "', '10:00', 1, 'C', 'A', 4, 2, " + std::to_string(employee)
            + ", " + std::to_string(status) + ", '2026-11-01 09:00:00', 'Carla')");
    }

    std::vector<std::string> Find(const BookedTimesFilter& filter)
    {
        std::vector<std::string> found;
        for (const BookedTimeRow& row : FindBookedTimes(*SharedDatabase(host_.DataSource()), filter))
            found.push_back(row.startDate + " " + row.endDate);
        std::ranges::sort(found);
        return found;
    }

    using List = std::vector<std::string>;
};

TEST_F(BookedTimes, AreThoseThatTouchTheDaysHoweverLongTheyAre)
{
    Add("2030-01-01", "2030-03-01");
    Add("2030-01-31", "2030-01-31");
    Add("2030-01-30", "2030-02-01");
    Add("2030-02-01", "2030-02-01");
    Add("2030-02-02", "2030-02-05");
    Add("2030-02-03", "2030-02-03");
    Add("2030-02-03", "2030-02-04");
    Add("2030-02-01", "2030-02-01", 3);
    Add("2030-02-01", "2030-02-01", 1, 1);
    const List touched = {"2030-01-01 2030-03-01", "2030-01-30 2030-02-01", "2030-02-01 2030-02-01",
                          "2030-02-02 2030-02-05"};
    EXPECT_EQ(Find({2, 0, "2030-02-01", "", "2030-02-02"}), touched);
    EXPECT_EQ(Find({2, 0, "2030-02-01", "2030-02-01", "2030-02-03"}),
              (List{"2030-02-02 2030-02-05", "2030-02-03 2030-02-03", "2030-02-03 2030-02-04"}))
        << "those that begin behind the days that are known";
    EXPECT_EQ(Find({2, 27, "2030-02-01", "", "2030-02-02"}),
              (List{"2030-01-01 2030-03-01", "2030-01-30 2030-02-01", "2030-02-02 2030-02-05"}))
        << "without the one that is altered";
}

} // namespace kova::family::test
