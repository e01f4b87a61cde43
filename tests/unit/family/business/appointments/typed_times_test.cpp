#include "family/business/appointments/typed_times.hpp"

#include <gtest/gtest.h>

namespace kova::family::test {

namespace {

struct Case {
    TypedTimes typed;
    const char* field;
    const char* text;
};

Text Shown(const TimeSpan& span)
{
    return FormatDate(span.start.date) + " " + FormatTime(span.start.time) + " " + FormatDate(span.end.date)
        + " " + FormatTime(span.end.time);
}

} // namespace

TEST(TypedTimes, AreRefusedByTheFirstFieldThatIsNotPossible)
{
    const char* startDate = "Informe uma data inicial válida.";
    const char* startTime = "Informe uma hora inicial válida.";
    const char* endDate = "Informe uma data final válida.";
    const char* endTime = "Informe uma hora final válida.";
    const char* order = "O término deve ser posterior ao início.";
    const Case cases[] = {
        {{"", "", "", ""}, "DataInicial", startDate},
        {{"__/__/____", "09:00", "01/12/2026", "10:00"}, "DataInicial", startDate},
        {{"30/02/2026", "09:00", "01/12/2026", "10:00"}, "DataInicial", startDate},
        {{"29/02/2027", "09:00", "01/12/2026", "10:00"}, "DataInicial", startDate},
        {{"31/12/1899", "09:00", "01/12/2026", "10:00"}, "DataInicial", startDate},
        {{"01/01/3000", "09:00", "01/12/2026", "10:00"}, "DataInicial", startDate},
        {{"2026-12-01", "09:00", "01/12/2026", "10:00"}, "DataInicial", startDate},
        {{"01/12/2026 09:00", "09:00", "01/12/2026", "10:00"}, "DataInicial", startDate},
        {{"01/12/2026", "", "01/12/2026", "10:00"}, "HoraInicial", startTime},
        {{"01/12/2026", "__:__", "01/12/2026", "10:00"}, "HoraInicial", startTime},
        {{"01/12/2026", "24:00", "01/12/2026", "10:00"}, "HoraInicial", startTime},
        {{"01/12/2026", "9:7", "01/12/2026", "10:00"}, "HoraInicial", startTime},
        {{"01/12/2026", "09:60", "01/12/2026", "10:00"}, "HoraInicial", startTime},
        {{"01/12/2026", "-9:00", "01/12/2026", "10:00"}, "HoraInicial", startTime},
        {{"01/12/2026", "09:00:30", "01/12/2026", "10:00"}, "HoraInicial", startTime},
        {{"01/12/2026", "09:00", "", "10:00"}, "DataFinal", endDate},
        {{"01/12/2026", "09:00", "31/11/2026", "10:00"}, "DataFinal", endDate},
        {{"01/12/2026", "09:00", "01/12/2026", ""}, "HoraFinal", endTime},
        {{"01/12/2026", "09:00", "01/12/2026", "25:00"}, "HoraFinal", endTime},
        {{"01/12/2026", "09:00", "01/12/2026", "09:00"}, "HoraFinal", order},
        {{"01/12/2026", "09:00", "01/12/2026", "08:59"}, "HoraFinal", order},
        {{"02/12/2026", "09:00", "01/12/2026", "10:00"}, "HoraFinal", order},
        {{"01/12/2026", "09:00", "01/12/2026", "09:00", true}, "HoraFinal", order},
        {{"02/12/2026", "09:00", "01/12/2026", "10:00", true}, "HoraFinal", order},
        {{"31/12/2999", "23:00", "31/12/2999", "01:00", true}, "DataFinal", endDate},
    };
    for (const Case& one : cases) {
        TimeSpan span;
        const Refusal refusal = one.typed.ReadInto(span);
        ASSERT_TRUE(refusal) << one.typed.startDate << one.typed.startTime;
        EXPECT_EQ(refusal->status, WriteAnswer::Invalid);
        EXPECT_EQ(refusal->field, one.field);
        EXPECT_EQ(refusal->text, one.text);
    }
}

TEST(TypedTimes, AreReadWithBlanksAroundThemAndShortNumbers)
{
    const std::pair<TypedTimes, Text> cases[] = {
        {{"01/12/2026", "09:00", "01/12/2026", "10:00"}, "01/12/2026 09:00 01/12/2026 10:00"},
        {{" 1/12/2026 ", " 9:00 ", "01/12/2026", "10:00"}, "01/12/2026 09:00 01/12/2026 10:00"},
        {{"01/12/2026", "09:00:00", "01/12/2026", "10:00:00"}, "01/12/2026 09:00 01/12/2026 10:00"},
        {{"29/02/2028", "00:00", "29/02/2028", "23:59"}, "29/02/2028 00:00 29/02/2028 23:59"},
        {{"01/01/1900", "09:00", "31/12/2999", "10:00"}, "01/01/1900 09:00 31/12/2999 10:00"},
        {{"01/12/2026", "23:00", "02/12/2026", "01:00"}, "01/12/2026 23:00 02/12/2026 01:00"},
        {{"31/12/2026", "23:00", "31/12/2026", "01:00", true}, "31/12/2026 23:00 01/01/2027 01:00"},
        {{"31/12/2026", "21:00", "31/12/2026", "23:00", true}, "31/12/2026 21:00 31/12/2026 23:00"},
    };
    for (const auto& [typed, read] : cases) {
        TimeSpan span;
        const Refusal refusal = typed.ReadInto(span);
        ASSERT_FALSE(refusal) << refusal->text;
        EXPECT_EQ(Shown(span), read);
    }
}

TEST(TypedTimes, OfATableAreItsRowsWithContent)
{
    EXPECT_TRUE(PickedTimes(nullptr).empty());
    EXPECT_TRUE(PickedTimes(std::make_shared<Array>(3, 0)).empty());
    const auto table = std::make_shared<Array>(3, 3);
    table->At(0, 0) = "01/12/2026";
    table->At(1, 2) = "09:00";
    table->At(2, 1) = " ";
    const std::vector<TypedTimes> rows = PickedTimes(table);
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].startDate, "01/12/2026");
    EXPECT_EQ(rows[1].startTime, "09:00");
    EXPECT_THROW(PickedTimes(std::make_shared<Array>(2, 1)), Failure);
}

} // namespace kova::family::test
