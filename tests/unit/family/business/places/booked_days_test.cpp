// Where the engines look for what is booked of everybody on some days, whatever they know of the
// appointments, and what is found there.

#include "tests/unit/family/plan_fixture.hpp"

#include "family/data/sources/shared_database.hpp"
#include "family/data/stores/booked_days.hpp"

#include <algorithm>

namespace kova::family::test {

class BookedDaysPlan : public BigShopTest, public testing::WithParamInterface<int> {
protected:
    BookedDaysPlan()
    {
        AddAppointments(GetParam());
        FindBookedDays(Data(), "2026-11-27", "2026-12-28");
    }

    /// Neither the past nor the future of the shop is gone through: what begins on the days is found by its
    /// beginning, between both ends, and what began before by each employee's appointments of several days.
    static void ExpectItReadsTheDaysAlone(const std::vector<StatementPlan>& plans)
    {
        const std::string plan = PlanWith("from funcionario", plans);
        EXPECT_FALSE(ReadsWholeTable(plan)) << plan;
        const bool onServer = TestsRunOnServer();
        EXPECT_NE(plan.find("agendamento_por_inicio"), std::string::npos) << plan;
        EXPECT_NE(plan.find(onServer ? "(data_inicial <= " : "data_inicial>? AND data_inicial<?"),
                  std::string::npos)
            << plan;
        EXPECT_NE(plan.find("agendamento_de_varios_dias"), std::string::npos) << plan;
        EXPECT_NE(plan.find(onServer ? "(data_final >= " : "(codigo_do_funcionario=? AND data_final>?)"),
                  std::string::npos)
            << plan;
    }
};

TEST_P(BookedDaysPlan, ReadsTheDaysAloneBeforeAnythingWasCounted)
{
    ForgetWhatWasCounted();
    ExpectItReadsTheDaysAlone(PlansOf(Data()));
}

TEST_P(BookedDaysPlan, ReadsTheDaysAloneAfterTheAppointmentsWereCounted)
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

INSTANTIATE_TEST_SUITE_P(Employees, BookedDaysPlan, testing::Values(1, 5, 15, 16, 65));

class BookedDays : public BookingTest {
protected:
    void Add(Key employee, const std::string& from, const std::string& until, int status = 1)
    {
        Run("insert into agendamento (data_inicial, hora_inicial, data_final, hora_final, "
            "tipo_do_agendamento,"
            " nome_do_cliente, nome_do_animal, numero_do_tipo_de_servico, codigo_do_servico,"
            " codigo_do_funcionario, situacao, incluido_em, incluido_por) values ('"
            + from + "', '09:00', '" + until + "', '10:00', 1, 'C', 'A', 4, 2, " + std::to_string(employee)
            + ", " + std::to_string(status) + ", '2026-11-01 09:00:00', 'Carla')");
    }

    std::vector<std::string> Find(const std::string& from, const std::string& until)
    {
        std::vector<std::string> found;
        for (const BookedEmployeeRow& row : FindBookedDays(*SharedDatabase(host_.DataSource()), from, until))
            found.push_back(std::to_string(row.employee) + " " + row.times.startDate + " "
                            + row.times.endDate);
        std::ranges::sort(found);
        return found;
    }

    using List = std::vector<std::string>;
};

TEST_F(BookedDays, AreThoseThatTouchTheDaysHoweverLongTheyAre)
{
    Add(1, "2030-01-01", "2030-03-01");
    Add(2, "2030-01-31", "2030-01-31");
    Add(2, "2030-01-30", "2030-02-01");
    Add(1, "2030-02-01", "2030-02-01");
    Add(1, "2030-02-01", "2030-02-01", 3);
    Add(2, "2030-01-01", "2030-03-01", 3);
    Add(2, "2030-02-02", "2030-02-05");
    Add(1, "2030-02-03", "2030-02-03");
    EXPECT_EQ(Find("2030-02-01", "2030-02-02"),
              (List{"1 2030-01-01 2030-03-01", "1 2030-02-01 2030-02-01", "2 2030-01-30 2030-02-01",
                    "2 2030-02-02 2030-02-05"}));
    EXPECT_EQ(Find("2031-02-01", "2031-02-02"), List{});
}

TEST_F(BookedDays, AreThoseOfEmployeesWhoHaveGoneToo)
{
    Add(2, "2030-01-30", "2030-02-01");
    Run("update funcionario set situacao = 2 where codigo = 2");
    EXPECT_EQ(Find("2030-02-01", "2030-02-01"), List{"2 2030-01-30 2030-02-01"});
}

} // namespace kova::family::test
