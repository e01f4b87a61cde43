// A day or a week as the timetable shows it.

#include "tests/unit/family/business/places/places_fixture.hpp"

#include "family/business/places/timetable.hpp"

#include <string>
#include <vector>

namespace kova::family::test {

namespace {

std::string TwoDigits(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

std::string Hour(int minute) { return TwoDigits(minute / 60) + ":" + TwoDigits(minute % 60); }

std::string Told(PartOfDay part) { return Hour(part.from) + "-" + Hour(part.until); }

} // namespace

class Timetable : public PlacesTest {
protected:
    Timetable() { Run("delete from agendamento where data_inicial >= '2031-01-01'"); }

    std::vector<TimetableColumn> Read(Key employee = Everybody, int days = 1)
    {
        return ReadTimetable(Data(), {FirstDay, days, employee});
    }
    TimetableColumn Of(Key employee, Date date = FirstDay)
    {
        return ReadTimetable(Data(), {date, 1, employee}).at(0);
    }
    static std::vector<std::string> Closed(const TimetableColumn& column)
    {
        std::vector<std::string> told;
        for (const ClosedPart& closed : column.closed)
            told.push_back(Told(closed.part) + " " + closed.why);
        return told;
    }
    static std::vector<std::string> Blocks(const TimetableColumn& column)
    {
        std::vector<std::string> told;
        for (const TimetableBlock& block : column.blocks)
            told.push_back(Told(block.part) + " " + std::to_string(block.row.status));
        return told;
    }
    static std::vector<std::string> Names(const std::vector<TimetableColumn>& columns)
    {
        std::vector<std::string> names;
        for (const TimetableColumn& column : columns)
            names.push_back(IsoDate(column.date) + " " + column.nickname);
        return names;
    }
};

using List = std::vector<std::string>;

TEST_F(Timetable, HasAColumnForEachEmployeeByNickname)
{
    EXPECT_EQ(Names(Read()), (List{"2031-03-03 Bia", "2031-03-03 Zeca"}));
    EXPECT_EQ(Names(Read(Zeca, 3)), (List{"2031-03-03 Zeca", "2031-03-04 Zeca", "2031-03-05 Zeca"}));
    EXPECT_EQ(Names(Read(77)), List{});
}

TEST_F(Timetable, HasWhoLeftAsLongAsThereIsSomethingToSee)
{
    Run("update funcionario set situacao = 2 where codigo = 1");
    EXPECT_EQ(Names(Read()), List{"2031-03-03 Bia"});
    Book(Zeca, FirstDay, "09:00", FirstDay, "09:30");
    ASSERT_EQ(Names(Read()), (List{"2031-03-03 Bia", "2031-03-03 Zeca"}));
    EXPECT_EQ(Closed(Read().at(1)).back(), "00:00-24:00 A loja está fechada")
        << "the shop's reason comes first";
    Open(2, "00:00", "24:00");
    EXPECT_EQ(Closed(Read().at(1)), List{"00:00-24:00 Zeca não atende mais"});
}

TEST_F(Timetable, TellsWhyHoursAreClosed)
{
    Open(2, "08:00", "12:00");
    Open(2, "13:00", "18:00");
    Works(Zeca, 2, "09:00", "18:00");
    Away(Zeca, FirstDay, "15:00", FirstDay, "16:30");
    EXPECT_EQ(Closed(Of(Bia)),
              (List{"00:00-08:00 A loja está fechada", "12:00-13:00 A loja está fechada",
                    "18:00-24:00 A loja está fechada"}));
    EXPECT_EQ(Closed(Of(Zeca)),
              (List{"00:00-08:00 A loja está fechada", "08:00-09:00 Zeca não trabalha",
                    "12:00-13:00 A loja está fechada", "15:00-16:30 Zeca está ausente (curso)",
                    "18:00-24:00 A loja está fechada"}));
    Away(Everybody, FirstDay, "10:00", FirstDay, "11:00");
    EXPECT_EQ(Closed(Of(Bia)).at(1), "10:00-11:00 Todos ausentes (curso)");
    Rest(FirstDay);
    EXPECT_EQ(Closed(Of(Bia)), List{"00:00-24:00 Feriado: Dia"});
}

TEST_F(Timetable, HasBlocksByTheirBeginningTheLongerOnesFirst)
{
    Book(Bia, FirstDay, "10:00", FirstDay, "10:30");
    Book(Bia, FirstDay, "09:00", FirstDay, "09:30", 3);
    Book(Bia, FirstDay, "09:00", FirstDay, "11:00", 2);
    Book(Zeca, FirstDay, "09:00", FirstDay, "09:30");
    Book(Bia, AddDays(FirstDay, 1), "09:00", AddDays(FirstDay, 1), "09:30");
    EXPECT_EQ(Blocks(Of(Bia)), (List{"09:00-11:00 2", "09:00-09:30 3", "10:00-10:30 1"}));
    EXPECT_EQ(Blocks(Of(Zeca)), List{"09:00-09:30 1"});
}

TEST_F(Timetable, HasWhatBeganBeforeAndWhatGoesOn)
{
    Book(Bia, AddDays(FirstDay, -2), "22:00", FirstDay, "01:30");
    Book(Bia, FirstDay, "23:00", AddDays(FirstDay, 1), "00:00");
    EXPECT_EQ(Blocks(Of(Bia)), (List{"00:00-01:30 1", "23:00-24:00 1"}));
    EXPECT_EQ(Blocks(Of(Bia, AddDays(FirstDay, -1))), List{"00:00-24:00 1"});
    EXPECT_EQ(Blocks(Of(Bia, AddDays(FirstDay, 1))), List{}) << "it ends as that day begins";
    EXPECT_EQ(Of(Bia).blocks.at(0).span.start, (DateTime{AddDays(FirstDay, -2), {22, 0, 0}}));
}

TEST_F(Timetable, TellsWhoAndWhatOfABlock)
{
    Open(2, "00:00", "24:00");
    ASSERT_EQ(Write(*Full(On("03/03/2031"))), 0);
    const DayAppointmentRow row = Of(Bia).blocks.at(0).row;
    EXPECT_EQ(row.animal, "Paçoca");
    EXPECT_FALSE(row.customer.empty());
    EXPECT_FALSE(row.service.empty());
    EXPECT_EQ(row.version, 1);
    EXPECT_EQ(row.employee, Bia);
    ASSERT_EQ(Write(*Simplified(On("03/03/2031", "11:00", "12:00"))), 0);
    const DayAppointmentRow typed = Of(Bia).blocks.at(1).row;
    EXPECT_EQ(Texts("select nome_do_cliente || '|' || nome_do_animal from agendamento where numero = "
                    + std::to_string(typed.number)),
              List{typed.customer + "|" + typed.animal});
}

TEST_F(Timetable, IsNotReadOfNoDay) { EXPECT_THROW(Read(Bia, 0), Failure); }

} // namespace kova::family::test
