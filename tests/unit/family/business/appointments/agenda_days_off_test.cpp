// Bookings that fall on a Sunday or a holiday. In December 2026 the Sundays are 6, 13, 20 and 27.

#include "tests/unit/family/business/appointments/booking_fixture.hpp"

#include "family/data/engine/iso_text.hpp"

namespace kova::family::test {

class DaysOffRule : public BookingTest {
protected:
    DaysOffRule()
    {
        Run("insert into feriado (nome, dia, mes) values ('Natal', 25, 12)");
        Run("insert into feriado (nome, data) values ('Aniversário da cidade', '2026-12-08')");
    }

    static void Answer(Component& agenda, bool validated, bool move)
    {
        agenda.Set("DadosValidados", validated);
        agenda.Set("DomingoOuFeriado", move);
    }
    static void Repeat(Component& agenda, Long more, Integer frequency)
    {
        agenda.Set("QuantidadeDeReagendamentos", more);
        agenda.Set("FrequenciaDeReagendamento", frequency);
    }
    static void Pick(Component& agenda, const std::vector<Hours>& rows)
    {
        agenda.Set("CriadaListaDasDatasEHorasSelecionadas", true);
        agenda.Set("QuantidadeDeReagendamentos", static_cast<Long>(rows.size()) - 1);
        agenda.Set("FrequenciaDeReagendamento", Integer(3));
        agenda.Set("ListaDasDatasEHorasSelecionadas", Picked(rows));
    }
};

using Lines = std::vector<std::string>;

TEST_F(DaysOffRule, AsksWithTheDateAndTheReason)
{
    const std::pair<const char*, const char*> cases[] = {
        {"06/12/2026", "A data 06/12/2026 é um domingo."},
        {"25/12/2026", "A data 25/12/2026 é feriado (Natal)."},
        {"25/12/2028", "A data 25/12/2028 é feriado (Natal)."},
        {"08/12/2026", "A data 08/12/2026 é feriado (Aniversário da cidade)."},
        {"25/12/2033", "A data 25/12/2033 é um domingo."},
    };
    for (const auto& [date, text] : cases)
        ExpectRefused(*Full(On(date)), "DomingoOuFeriado", text);
    EXPECT_EQ(Write(*Full(On("08/12/2027"))), 0);
    EXPECT_EQ(Write(*Full(On("05/12/2026"))), 0);
}

TEST_F(DaysOffRule, AsksAlsoWhereTheFormHasTheMarkOfAnEarlierQuestion)
{
    const auto desk = Full(On("06/12/2026"));
    Answer(*desk, false, true);
    ExpectRefused(*desk, "DomingoOuFeriado", "A data 06/12/2026 é um domingo.");
}

TEST_F(DaysOffRule, KeepsTheDateOnTheSecondWriteOfTheSameObject)
{
    const auto desk = Full(On("06/12/2026"));
    ASSERT_EQ(desk->Call("Adicionar"), Value(Integer(2)));
    Answer(*desk, true, false);
    ASSERT_EQ(Write(*desk), 0);
    EXPECT_EQ(Added(), Lines{"2026-12-06 09:00-2026-12-06 10:00"});
}

TEST_F(DaysOffRule, MovesToTheNextDayThatIsNeither)
{
    const std::pair<Hours, const char*> cases[] = {
        {On("06/12/2026"), "2026-12-07 09:00-2026-12-07 10:00"},
        {On("08/12/2026"), "2026-12-09 09:00-2026-12-09 10:00"},
        {{"06/12/2026", "23:30", "07/12/2026", "00:30"}, "2026-12-07 23:30-2026-12-08 00:30"},
    };
    Lines expected;
    for (const auto& [hours, moved] : cases) {
        const auto desk = Full(hours);
        ASSERT_EQ(desk->Call("Adicionar"), Value(Integer(2)));
        Answer(*desk, true, true);
        ASSERT_EQ(Write(*desk), 0);
        expected.emplace_back(moved);
        EXPECT_EQ(Added(), expected);
    }
}

TEST_F(DaysOffRule, MovesOverDaysOffInARow)
{
    Run("insert into feriado (nome, dia, mes) values ('Ponte', 26, 12)");
    const auto desk = Full(On("25/12/2026"));
    Answer(*desk, true, true);
    ASSERT_EQ(Write(*desk), 0);
    EXPECT_EQ(AddedDays(), Lines{"2026-12-28"});
}

TEST_F(DaysOffRule, MovesToADayOnWhichTheEmployeeHasRoomAtThatTime)
{
    ASSERT_EQ(Write(*Full(On("07/12/2026", "09:30", "10:30"))), 0);
    ASSERT_EQ(Write(*Full(On("09/12/2026", "08:00", "09:01"))), 0);
    ASSERT_EQ(Write(*Full(On("10/12/2026", "10:00", "11:00"))), 0);
    const auto desk = Full(On("06/12/2026"));
    ASSERT_EQ(desk->Call("Adicionar"), Value(Integer(2)));
    Answer(*desk, true, true);
    ASSERT_EQ(Write(*desk), 0);
    EXPECT_EQ(Added().back(), "2026-12-10 09:00-2026-12-10 10:00");
}

TEST_F(DaysOffRule, MovesFarWhereTheEmployeeIsBookedForMonths)
{
    const auto busy = Full({"07/12/2026", "08:00", "03/03/2027", "18:00"});
    ASSERT_EQ(Write(*busy), 0);
    const auto desk = Full(On("06/12/2026"));
    Answer(*desk, true, true);
    ASSERT_EQ(Write(*desk), 0);
    EXPECT_EQ(Added().back(), "2027-03-04 09:00-2027-03-04 10:00");
}

TEST_F(DaysOffRule, DoesNotAskForRoomOnADayThatIsMovedAway)
{
    const auto sunday = Full(On("06/12/2026"));
    Answer(*sunday, true, false);
    ASSERT_EQ(Write(*sunday), 0);
    const auto desk = Full(On("06/12/2026"));
    Answer(*desk, true, true);
    ASSERT_EQ(Write(*desk), 0);
    EXPECT_EQ(AddedDays(), (Lines{"2026-12-06", "2026-12-07"}));
}

TEST_F(DaysOffRule, NamesTheRepetitionThatFallsOnADayOff)
{
    const auto desk = Full(On("11/12/2026"));
    Repeat(*desk, 4, 0);
    ExpectRefused(*desk, "DomingoOuFeriado", "A data 25/12/2026 é feriado (Natal).");
    Answer(*desk, true, true);
    ASSERT_EQ(Write(*desk), 0);
    EXPECT_EQ(AddedDays(), (Lines{"2026-12-11", "2026-12-18", "2026-12-26", "2027-01-01", "2027-01-08"}));
}

TEST_F(DaysOffRule, MovesWithoutTakingTheRoomOfTheSameBooking)
{
    const auto desk = Full(On("01/12/2026"));
    Pick(*desk, {On("06/12/2026"), On("07/12/2026"), On("13/12/2026", "09:30", "10:30"), On("14/12/2026")});
    Answer(*desk, false, true);
    ASSERT_EQ(Write(*desk), 0);
    EXPECT_EQ(AddedDays(), (Lines{"2026-12-09", "2026-12-07", "2026-12-15", "2026-12-14"}));
}

TEST_F(DaysOffRule, MovesEverySundayOfAWeeklyBookingToADayOfItsOwn)
{
    const auto desk = Full({"06/12/2026", "09:00", "06/12/2026", "10:00"});
    Repeat(*desk, 999, 0);
    Answer(*desk, true, true);
    ASSERT_EQ(Write(*desk), 0);
    EXPECT_EQ(Count("(select distinct data_inicial from agendamento where numero > 23) as days"), 1000);
    for (const std::string& day : AddedDays())
        EXPECT_NE(Weekday(ReadIsoMoment(day, "00:00").date), 1) << day;
}

TEST_F(DaysOffRule, GoesForPickedDatesByTheMarkAlone)
{
    for (const bool validated : {false, true}) {
        const auto kept = Full(On("01/12/2026"));
        Pick(*kept, {On("06/12/2026"), On("08/12/2026")});
        Answer(*kept, validated, false);
        ASSERT_EQ(Write(*kept), 0);
        EXPECT_EQ(AddedDays(), (Lines{"2026-12-06", "2026-12-08"}));
        Run("delete from agendamento where numero > 23");
        const auto moved = Full(On("01/12/2026"));
        Pick(*moved, {On("06/12/2026"), On("08/12/2026")});
        Answer(*moved, validated, true);
        ASSERT_EQ(Write(*moved), 0);
        EXPECT_EQ(AddedDays(), (Lines{"2026-12-07", "2026-12-09"}));
        Run("delete from agendamento where numero > 23");
    }
}

TEST_F(DaysOffRule, AsksWhereARecordIsAltered)
{
    ASSERT_EQ(Write(*Full(On("01/12/2026"))), 0);
    const auto desk = Over(24, Full(On("06/12/2026")));
    ExpectAnswer(*desk, "Alterar", 2, "DomingoOuFeriado", "A data 06/12/2026 é um domingo.");
    Answer(*desk, true, true);
    ASSERT_EQ(Write(*desk, "Alterar"), 0);
    EXPECT_EQ(AddedDays(), Lines{"2026-12-07"});
    Answer(*desk, true, false);
    ASSERT_EQ(Write(*desk, "Alterar"), 0);
    EXPECT_EQ(AddedDays(), Lines{"2026-12-06"});
}

TEST_F(DaysOffRule, AsksWhereARecordIsAlteredWhateverItsRepetitionSays)
{
    ASSERT_EQ(Write(*Full(On("01/12/2026"))), 0);
    const auto desk = Over(24, Full(On("06/12/2026")));
    Pick(*desk, {On("02/12/2026"), On("03/12/2026")});
    ExpectAnswer(*desk, "Alterar", 2, "DomingoOuFeriado", "A data 06/12/2026 é um domingo.");
}

TEST_F(DaysOffRule, NamesTheEmployeesRoomFirst)
{
    const auto sunday = Full(On("06/12/2026"));
    Answer(*sunday, true, false);
    ASSERT_EQ(Write(*sunday), 0);
    ExpectRefused(*Full(On("06/12/2026")), "HoraInicial",
                  "Bia já tem agendamento das 09:00 às 10:00 em 06/12/2026.");
}

TEST_F(DaysOffRule, EndsWithTheCalendar)
{
    Run("insert into feriado (nome, dia, mes) values ('Véspera', 31, 12)");
    const auto desk = Full(On("31/12/2999"));
    Answer(*desk, true, true);
    ExpectRefused(*desk, "DataInicial", "Informe uma data inicial válida. (31/12/2999)");
}

} // namespace kova::family::test
