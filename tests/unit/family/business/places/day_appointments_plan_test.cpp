// Where the engines look for what a timetable shows, whatever they know of the appointments.

#include "tests/unit/family/plan_fixture.hpp"

#include "family/data/stores/day_appointments.hpp"

namespace kova::family::test {

class DayAppointmentsPlan : public BigShopTest, public testing::WithParamInterface<int> {
protected:
    DayAppointmentsPlan()
    {
        AddAppointments(GetParam());
        AddTheRest();
        FindDayAppointments(Data(), {"2026-12-01", "2026-12-07", 0});
    }

    /// The days by the beginning, between both ends (of one employee, where the server knows the asked one,
    /// by his own), and what began before by each employee's appointments of several days; names by their
    /// keys.
    static void ExpectItReadsTheDaysAlone(const std::vector<StatementPlan>& plans)
    {
        const std::string plan = PlanWith("cross join agendamento", plans);
        EXPECT_FALSE(ReadsWholeTable(plan)) << plan;
        const bool byTheBeginning = plan.find("agendamento_por_inicio") != std::string::npos;
        const bool byTheEmployeesOwn =
            plan.find("(data_inicial >= '2026-11-27'::text) AND (data_inicial <= '2026-11-27'::text))")
            != std::string::npos;
        EXPECT_TRUE(byTheBeginning || byTheEmployeesOwn) << plan;
        EXPECT_NE(plan.find("agendamento_de_varios_dias"), std::string::npos) << plan;
    }
};

TEST_P(DayAppointmentsPlan, ReadsTheDaysAloneBeforeAnythingWasCounted)
{
    ForgetWhatWasCounted();
    ExpectItReadsTheDaysAlone(PlansOf(Data()));
}

TEST_P(DayAppointmentsPlan, ReadsTheDaysAloneAfterTheAppointmentsWereCounted)
{
    Analyse();
    ExpectItReadsTheDaysAlone(PlansOf(Data()));
    ExpectItReadsTheDaysAlone(PlansForValues(Data()));
    AnalyseALittle();
    ExpectItReadsTheDaysAlone(PlansOf(Data()));
    if (TestsRunOnServer())
        return;
    for (const char* ofSeveralDays : {"", "1 1 1 1", "5000 80 2 1"}) {
        SCOPED_TRACE(ofSeveralDays);
        ActAsIfThereWere(1'000'000, GetParam(), ofSeveralDays);
        ExpectItReadsTheDaysAlone(PlansOf(Data()));
    }
}

INSTANTIATE_TEST_SUITE_P(Employees, DayAppointmentsPlan, testing::Values(1, 5, 15, 65));

} // namespace kova::family::test
