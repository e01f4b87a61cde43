// One call, many visits: a booking repeated at intervals or on dates that the customer names.

#include "tests/window/appointment_book.hpp"

#include "agenda/contracts/widgets.hpp"

namespace kova::window_test {

namespace {

using Rows = std::vector<std::string>;

class Repetition : public AppointmentBook {
protected:
    void EntersFirstVisit()
    {
        OpensNewRecord();
        EntersCustomerAndAnimal();
        EntersService("tesoura");
        EntersStart("24112026", "1500");
        EntersEmployee("J");
        AsksForRepetition();
    }
};

/// What is typed in a row of the date selection, and the start and end that come of it.
struct Visit {
    const char *date, *time, *start, *end;
};

constexpr Visit Visits[] = {
    {"24112026", "1500", "2026-11-24 15:00", "2026-11-24 16:30"},
    {"24112026", "1700", "2026-11-24 17:00", "2026-11-24 18:30"},
    {"25112026", "0800", "2026-11-25 08:00", "2026-11-25 09:30"},
    {"27112026", "0915", "2026-11-27 09:15", "2026-11-27 10:45"},
    {"30112026", "1000", "2026-11-30 10:00", "2026-11-30 11:30"},
    {"03122026", "1100", "2026-12-03 11:00", "2026-12-03 12:30"},
    {"14122026", "1200", "2026-12-14 12:00", "2026-12-14 13:30"},
    {"24122026", "1300", "2026-12-24 13:00", "2026-12-24 14:30"},
    {"31122026", "2330", "2026-12-31 23:30", "2027-01-01 01:00"},
    {"04012027", "1400", "2027-01-04 14:00", "2027-01-04 15:30"},
    {"01022027", "0745", "2027-02-01 07:45", "2027-02-01 09:15"},
    {"06032028", "1515", "2028-03-06 15:15", "2028-03-06 16:45"},
};

TEST_F(Repetition, ByWeeksBooksTheFirstVisitAndAsManyMore)
{
    EntersFirstVisit();
    receptionist->Types("3");
    SavesAndLeaves();
    Run();
    EXPECT_EQ(receptionist->Boxes(), Rows{});
    EXPECT_EQ(Appointments(),
              (Rows{"2026-11-24 15:00|2026-11-24 16:30|10|14|Tosa na tesoura|Juca",
                    "2026-12-01 15:00|2026-12-01 16:30|10|14|Tosa na tesoura|Juca",
                    "2026-12-08 15:00|2026-12-08 16:30|10|14|Tosa na tesoura|Juca",
                    "2026-12-15 15:00|2026-12-15 16:30|10|14|Tosa na tesoura|Juca"}));
}

TEST_F(Repetition, ByTheUnitChosenBehindTheNumberBooksFortnights)
{
    EntersFirstVisit();
    // Letters do not get into the number.
    receptionist->Types("x2y").Presses("Tab").TakesNextRow();
    SavesAndLeaves();
    Run();
    EXPECT_EQ(Query("select data_inicial from agendamento order by data_inicial"),
              (Rows{"2026-11-24", "2026-12-08", "2026-12-22"}));
}

TEST_F(Repetition, OnTwelveTypedDatesBooksTwelveVisitsAtOnce)
{
    Rows shown;
    EntersFirstVisit();
    receptionist->Presses("Tab").Presses("Down").InList("End").InList("Return");
    receptionist->WaitsFor("frmSelecionarDatas").Looks([&] {
        for (const char* name : {"kvtxtApelidoDoCliente", "kvtxtNomeDoAnimal", "kvtxtTempoDoServico"})
            shown.push_back(As<KVTextBox>(Receptionist::Control("frmSelecionarDatas", name))->Text());
    });
    for (const Visit& visit : Visits)
        receptionist->Types(visit.date).Presses("Tab").Types(visit.time).Presses("Tab");
    SavesAndLeaves("frmSelecionarDatas");
    Run();
    Rows expected;
    for (const Visit& visit : Visits)
        expected.push_back(std::string(visit.start) + "|" + visit.end + "|10|14|Tosa na tesoura|Juca");
    EXPECT_EQ(receptionist->Boxes(), Rows{});
    EXPECT_EQ(shown, (Rows{"Zuzu", "Tobias", "01:30"}));
    EXPECT_EQ(Appointments(), expected);
}

} // namespace

} // namespace kova::window_test
