#include "tests/unit/family/business/appointments/desk_fixture.hpp"

#include "family/business/registers/holidays.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/sources/shared_database.hpp"
#include "family/data/stores/holiday_calendar.hpp"
#include "family/data/stores/national_holidays.hpp"

namespace kova::family::test {

/// The desk's clock stands in 2026. Beside the national holidays there are two of the town.
class RegisteredHolidays : public DeskTest {
protected:
    RegisteredHolidays()
    {
        Database& database = *SharedDatabase(host_.DataSource());
        soci::transaction transaction(database.Session());
        for (const HolidayRow& holiday : NationalHolidays(FirstHolidayYear, LastHolidayYear))
            Insert(database, holiday);
        Key code = 2000;
        for (HolidayRow day : UsualDaysOff(2026)) {
            day.codigo = ++code;
            Insert(database, day);
        }
        Insert(database, HolidayRow{1001, "Aniversário da cidade", 20, 11, {}});
        Insert(database, HolidayRow{1002, "Feira", {}, {}, std::string("2026-12-03")});
        transaction.commit();
    }

    /// "NAME DATE" of every row.
    std::vector<std::string> On(const std::string& date)
    {
        Holidays holidays(desk_);
        Text given = date;
        EXPECT_EQ(holidays.Call("Selecionar", {Long(2), Integer(0), Long(0), ByRef(given)}),
                  Value(Integer(0)));
        std::vector<std::string> rows;
        for (const RecordSetRef records = ResultOf(holidays); !records->Eof(); records->MoveNext())
            rows.push_back(records->Field("Nome").ToText() + " " + records->Field("Data").ToText());
        return rows;
    }

    using Rows = std::vector<std::string>;
};

TEST_F(RegisteredHolidays, OfEveryYearAreFoundByDayAndMonth)
{
    EXPECT_EQ(On("25/12"), (Rows{"Natal 25/12"}));
    EXPECT_EQ(On("24/12"), Rows());
}

TEST_F(RegisteredHolidays, OfTheCurrentYearAreFoundByDayAndMonth)
{
    EXPECT_EQ(On("03/04"), (Rows{"Sexta-feira Santa 03/04/2026"}));
    EXPECT_EQ(On("18/04"), Rows()) << "Good Friday of 2025";
    desk_.now.date.year = 2025;
    EXPECT_EQ(On("18/04"), (Rows{"Sexta-feira Santa 18/04/2025"}));
    EXPECT_EQ(On("03/04"), Rows());
}

TEST_F(RegisteredHolidays, OfBothKindsAreFoundByDate)
{
    EXPECT_EQ(On("25/12/2031"), (Rows{"Natal 25/12"}));
    EXPECT_EQ(On("04/06/2026"), (Rows{"Corpus Christi 04/06/2026"}));
    EXPECT_EQ(On("04/06/2027"), Rows());
    EXPECT_EQ(On("16/02/2026"), (Rows{"Carnaval 16/02/2026"}));
}

TEST_F(RegisteredHolidays, OfTheTownAreRowsLikeTheOthers)
{
    EXPECT_EQ(On("20/11"), (Rows{"Aniversário da cidade 20/11", "Dia da Consciência Negra 20/11"}));
    EXPECT_EQ(On("03/12"), (Rows{"Feira 03/12/2026"}));
    Run("update feriado set data = '2026-12-04' where codigo = 1002");
    EXPECT_EQ(On("03/12"), Rows());
    EXPECT_EQ(On("04/12"), (Rows{"Feira 04/12/2026"}));
    Run("delete from feriado where codigo = 1002");
    EXPECT_EQ(On("04/12"), Rows());
}

TEST_F(RegisteredHolidays, OfALeapDayAreFoundInEveryYear)
{
    EXPECT_EQ(On("29/02"), Rows());
    Insert(*SharedDatabase(host_.DataSource()), HolidayRow{1003, "Dia extra", 29, 2, {}});
    EXPECT_EQ(On("29/02"), (Rows{"Dia extra 29/02"}));
    EXPECT_EQ(On("29/02/2032"), (Rows{"Dia extra 29/02"}));
}

TEST_F(RegisteredHolidays, AreTheSameForTheBookingRule)
{
    HolidayCalendar calendar(*SharedDatabase(host_.DataSource()));
    constexpr Long DaysOfTwoYears = 730;
    for (Long day = 0; day < DaysOfTwoYears; ++day) {
        const Date date = AddDays({2026, 1, 1}, day);
        EXPECT_EQ(On(FormatDate(date)).empty(), !calendar.On(date).has_value()) << FormatDate(date);
    }
}

TEST_F(RegisteredHolidays, StayAsTheyWereForOneBookingAndAreReadAgainForTheNextAfterAChange)
{
    Database& database = *SharedDatabase(host_.DataSource());
    const Date fair{2026, 12, 3};
    HolidayCalendar calendar(database);
    EXPECT_EQ(calendar.On(fair), "Feira");
    Run("update feriado set nome = 'Festa' where codigo = 1002");
    EXPECT_EQ(calendar.On(fair), "Feira");
    EXPECT_EQ(HolidayCalendar(database).On(fair), "Festa");
    Run("delete from feriado where codigo = 1002");
    EXPECT_EQ(HolidayCalendar(database).On(fair), std::nullopt);
    Insert(database, HolidayRow{1002, "Feira", {}, {}, std::string("2026-12-03")});
    EXPECT_EQ(HolidayCalendar(database).On(fair), "Feira");
}

TEST_F(RegisteredHolidays, OfWhichTheChangesAreKnownAreNotAskedForAgain)
{
    Database& database = *SharedDatabase(host_.DataSource());
    const Date fair{2026, 12, 3};
    EXPECT_EQ(HolidayCalendar(database, 7).On(fair), "Feira");
    Run("delete from feriado where codigo = 1002");
    EXPECT_EQ(HolidayCalendar(database, 7).On(fair), "Feira");
    EXPECT_EQ(HolidayCalendar(database, 8).On(fair), std::nullopt);
}

TEST_F(RegisteredHolidays, TellAFailureWhereTheTextIsNoDate)
{
    Holidays holidays(desk_);
    for (const char* text : {"", "31/02", "32/01/2026", "__/__", "amanhã"}) {
        EXPECT_EQ(holidays.Call("Selecionar", {Long(2), Integer(0), Long(0), text}), Value(Integer(1)))
            << text;
        EXPECT_EQ(holidays.Get("NumeroDoErro"), Value(Long(13)));
        EXPECT_EQ(holidays.Get("LocalDoErro"), Value("KOVA_N_Feriados.clsFeriados, Selecionar"));
    }
}

TEST_F(RegisteredHolidays, TakeTheUsersObjectAndNothingElse)
{
    Holidays holidays(desk_);
    EXPECT_NO_THROW(holidays.Set("DadosDoUsuario", std::make_shared<DeskUser>("Lia")));
    EXPECT_THROW(holidays.Set("DadosDoUsuario", "Lia"), Failure);
}

} // namespace kova::family::test
