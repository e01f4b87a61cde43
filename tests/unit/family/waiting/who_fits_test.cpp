// Who could have a place that was freed.

#include "tests/unit/family/waiting/waiting_fixture.hpp"

#include "family/data/engine/iso_text.hpp"
#include "family/waiting/who_fits.hpp"

namespace kova::family::test {

using waiting::WaitingFit;
using List = std::vector<std::string>;

class WhoFits : public WaitingTest {
protected:
    static constexpr Key Zeca = 1, Bia = 2;
    /// A Wednesday.
    static constexpr Date Day{2026, 12, 2};
    const DateTime now_{{2026, 11, 20}, {9, 4, 5}};

    void Book(Key employee, const std::string& start, const std::string& end)
    {
        Run("insert into agendamento (data_inicial, hora_inicial, data_final, hora_final, "
            "tipo_do_agendamento,"
            " nome_do_cliente, nome_do_animal, numero_do_tipo_de_servico, codigo_do_servico,"
            " codigo_do_funcionario, situacao, incluido_em, incluido_por) values ('2026-12-02', '"
            + start + "', '2026-12-02', '" + end + "', 1, 'C', 'A', 4, 2, " + std::to_string(employee)
            + ", 1, '2026-11-01 09:00:00', 'Carla')");
    }

    /// "SERVICE hh:mm-hh:mm NOTE" of each.
    List Fits(Key employee, const std::string& start, const std::string& end, const DateTime* now = nullptr,
              Date until = Day)
    {
        List told;
        const waiting::FreedPlace freed{
            employee, {ReadIsoMoment(IsoDate(Day), start), ReadIsoMoment(IsoDate(until), end)}};
        for (const WaitingFit& fit : waiting::WhoFits(Data(), freed, now ? *now : now_))
            told.push_back(std::to_string(fit.service) + " " + FormatTime(fit.place.span.start.time) + "-"
                           + FormatTime(fit.place.span.end.time) + " "
                           + fit.entry.row.observacao.ValueOr("-"));
        return told;
    }

    void Waits(const char* note, const std::function<void(WaitingEntry&)>& change,
               const std::string& moment = "2026-11-20 09:00:00")
    {
        WaitingEntry entry = Bath();
        entry.row.observacao = std::string(note);
        change(entry);
        Added(entry, moment);
    }
};

TEST_F(WhoFits, IsWhoWouldDoThenTheOldestFirst)
{
    Waits(
        "late", [](WaitingEntry&) {}, "2026-11-20 08:00:00");
    Waits(
        "early", [](WaitingEntry&) {}, "2026-11-19 08:00:00");
    Waits("Bia", [](WaitingEntry& entry) { entry.employees = {Bia}; });
    Waits("Zeca", [](WaitingEntry& entry) { entry.employees = {Zeca}; });
    Waits("either", [](WaitingEntry& entry) { entry.employees = {Zeca, Bia}; });
    Waits("Tuesdays", [](WaitingEntry& entry) { entry.row.diasDaSemana = "3"; });
    Waits("Wednesdays", [](WaitingEntry& entry) { entry.row.diasDaSemana = "4"; });
    Waits("later days", [](WaitingEntry& entry) { entry.row.dataInicial = "2026-12-03"; });
    Waits("days before", [](WaitingEntry& entry) { entry.row.dataFinal = "2026-12-01"; });
    Waits("that day",
          [](WaitingEntry& entry) { entry.row.dataInicial = entry.row.dataFinal = "2026-12-02"; });
    EXPECT_EQ(Fits(Bia, "10:00", "11:15"),
              (List{"2 10:00-11:15 early", "2 10:00-11:15 late", "2 10:00-11:15 Bia", "2 10:00-11:15 either",
                    "2 10:00-11:15 Wednesdays", "2 10:00-11:15 that day"}));
}

TEST_F(WhoFits, HasRoomAtTheHoursThatWouldDo)
{
    Waits("mornings", [](WaitingEntry& entry) { entry.row.horaFinal = "11:15"; });
    Waits("from half past ten", [](WaitingEntry& entry) { entry.row.horaInicial = "10:30"; });
    Waits("until eleven", [](WaitingEntry& entry) { entry.row.horaFinal = "11:00"; });
    Waits("afternoons", [](WaitingEntry& entry) { entry.row.horaInicial = "13:00"; });
    EXPECT_EQ(
        Fits(Bia, "10:00", "11:15"),
        (List{"2 10:00-11:15 mornings", "2 10:30-11:45 from half past ten", "2 09:45-11:00 until eleven"}));
}

TEST_F(WhoFits, HasRoomInWhatWasFreedWithWhatIsFreeBesideIt)
{
    Waits("bath", [](WaitingEntry&) {});
    Waits("either", [](WaitingEntry& entry) { entry.services = {1, 2}; });
    Book(Bia, "08:00", "10:00");
    Book(Bia, "11:00", "18:00");
    EXPECT_EQ(Fits(Bia, "10:00", "11:00"), List{"1 10:00-10:30 either"}) << "75 minutes have no room";
    Run("update agendamento set hora_inicial = '11:15' where hora_inicial = '11:00' and numero > 25");
    EXPECT_EQ(Fits(Bia, "10:00", "11:00"), (List{"2 10:00-11:15 bath", "1 10:00-10:30 either"}));
    Run("update agendamento set hora_inicial = '11:00' where hora_inicial = '11:15' and numero > 25");
    Run("update agendamento set hora_final = '09:00' where hora_final = '10:00' and numero > 25");
    EXPECT_EQ(Fits(Bia, "10:00", "11:00"), (List{"2 09:45-11:00 bath", "1 10:00-10:30 either"}));
    EXPECT_EQ(Fits(Bia, "14:00", "15:00"), List{}) << "it was taken again meanwhile";
}

TEST_F(WhoFits, IsNobodyForTimesThatAreOver)
{
    Waits("bath", [](WaitingEntry&) {});
    const DateTime tenPast{Day, {10, 7, 0}}, evening{Day, {17, 0, 0}};
    EXPECT_EQ(Fits(Bia, "10:00", "11:15", &tenPast), List{"2 10:10-11:25 bath"});
    EXPECT_EQ(Fits(Bia, "10:00", "11:15", &evening), List{});
}

TEST_F(WhoFits, IsNobodyWhoIsInAnotherDesksHandOrCannotCome)
{
    Waits("bath", [](WaitingEntry&) {});
    const Key code = FindOpenWaiting(Data(), "2026-12-02").front().row.codigo;
    ASSERT_TRUE(waiting::Take(*otherDesk_, code, marcos_).IsDone());
    const DateTime soon{{2026, 11, 20}, {9, 44, 59}}, later{{2026, 11, 20}, {9, 45, 0}};
    EXPECT_EQ(Fits(Bia, "10:00", "11:15", &soon), List{});
    EXPECT_EQ(Fits(Bia, "10:00", "11:15", &later), List{"2 10:00-11:15 bath"});
    Run("update animal set situacao = 2 where codigo = 50");
    EXPECT_EQ(Fits(Bia, "10:00", "11:15", &later), List{});
    Run("update animal set situacao = 1 where codigo = 50");
    Run("update servico set situacao = 2 where codigo = 2");
    EXPECT_EQ(Fits(Bia, "10:00", "11:15", &later), List{});
    Run("update servico set situacao = 1 where codigo = 2");
    Run("update cliente set situacao = 4 where codigo = 10");
    EXPECT_EQ(Fits(Bia, "10:00", "11:15", &later), List{});
}

TEST_F(WhoFits, IsFoundOnAnyDayOfALongPlace)
{
    Waits("Fridays", [](WaitingEntry& entry) { entry.row.diasDaSemana = "6"; });
    EXPECT_EQ(Fits(Bia, "16:00", "09:00", nullptr, {2026, 12, 4}), List{"2 08:00-09:15 Fridays"});
    EXPECT_EQ(Fits(Bia, "16:00", "00:00", nullptr, {2026, 12, 4}), List{}) << "it ends as the Friday begins";
}

} // namespace kova::family::test
