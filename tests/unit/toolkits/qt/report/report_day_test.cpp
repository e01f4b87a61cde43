// The day that a report is about, and the name of its file.

#include "agenda/contracts/support/memory_record_set.hpp"
#include "reports/qt/delivery.hpp"
#include "toolkits/qt/report/report_day.hpp"

#include <gtest/gtest.h>

namespace kova::qt::test {

namespace {

constexpr Date Today{2026, 3, 18};

std::string NameOf(const char* title)
{
    return paper::FileNameOf(QString::fromUtf8(title), Date{2026, 11, 3}).toStdString();
}

} // namespace

TEST(FileNameOfADocument, IsTheTitleWithTheDay)
{
    EXPECT_EQ(NameOf("Imprimir agendamentos"), "Imprimir agendamentos 2026-11-03.pdf");
    EXPECT_EQ(NameOf(" a/b: c?  "), "a b c 2026-11-03.pdf");
    EXPECT_EQ(NameOf(""), "Relatório 2026-11-03.pdf");
}

TEST(ReportDay, IsTheDayOfTheRecords)
{
    MemoryRecordSet day({"Numero", "Cliente", "DataInicial", "DataFinal"},
                        {{Long{7}, "Zé", "20/11/2026", "21/11/2026"}, {Long{8}, "Ana", "22/11/2026", ""}});
    day.MoveLast();
    EXPECT_EQ(DayOfReport(&day, Today), (Date{2026, 11, 20}));
    MemoryRecordSet card({"Nome", "DataEHoraInicial"}, {{"Zé", "09:00 20/11/2026"}});
    EXPECT_EQ(DayOfReport(&card, Today), (Date{2026, 11, 20}));
}

TEST(ReportDay, IsTodayWhereTheRecordsTellNoDay)
{
    MemoryRecordSet none({"DataInicial"}, {});
    MemoryRecordSet other({"Numero", "Nome", "Data"}, {{Long{20112026}, "x20/11/2026", "31/02/2026"}});
    EXPECT_EQ(DayOfReport(nullptr, Today), Today);
    EXPECT_EQ(DayOfReport(&none, Today), Today);
    EXPECT_EQ(DayOfReport(&other, Today), Today);
}

} // namespace kova::qt::test
