// A colleague changes an appointment while it is open in the record form.

#include "tests/window/appointment_book.hpp"
#include "tests/window/other_desk.hpp"

namespace kova::window_test {

namespace {

constexpr const char* HolidayQuestion =
    "A data 20/11/2026 é feriado (Dia da Consciência Negra). Confirma o agendamento?";

class TwoDesks : public AppointmentBook {
protected:
    TwoDesks() : other_(Database()), number_(other_.Books()) { }

    /// From the list to the record of the one appointment, ready to be altered.
    void OpensTheRecord()
    {
        receptionist->WaitsFor(List).Presses("F7").Presses("Down").Presses("F6").WaitsFor(Record);
    }

    void EntersRemark(const std::string& text)
    {
        receptionist->Presses("Alt+B").Presses("Ctrl+A").Types(text);
    }

    /// The day is a holiday, which is asked about before a full record is saved.
    void SavesOnTheHoliday() { receptionist->Presses("Ctrl+S").Answers("Alt+S").WaitsFor(List).Leaves(); }

    std::string Stored() const
    {
        return Value("select coalesce(observacao, '-'), transporte_levar, alterado_por from agendamento");
    }

    OtherDesk other_;
    family::Key number_;
};

TEST_F(TwoDesks, BothFindTheirChangesSaved)
{
    OpensTheRecord();
    receptionist->Looks([&] { other_.Changes(number_, [](auto& input) { input.take = 1; }); });
    EntersRemark("Laço verde");
    SavesOnTheHoliday();
    Run();
    EXPECT_EQ(receptionist->Boxes(), std::vector<std::string>{HolidayQuestion});
    EXPECT_EQ(Stored(), "Laço verde|1|Antônia");
}

TEST_F(TwoDesks, OnTheSameFieldAreToldWhatEachHasTypedAndCanSaveAfterLookingAgain)
{
    std::string afterTheRefusal;
    OpensTheRecord();
    receptionist->Looks([&] { other_.Changes(number_, [](auto& input) { input.remark = "Sem laço."; }); });
    EntersRemark("Laço verde");
    receptionist->Presses("Ctrl+S").Answers("Return").WaitsFor(List).Looks(
        [&] { afterTheRefusal = Stored(); });
    receptionist->Presses("Alt+Right").WaitsFor(List).Presses("Alt+Left");
    OpensTheRecord();
    EntersRemark("Laço verde");
    SavesOnTheHoliday();
    Run();
    EXPECT_EQ(
        receptionist->Boxes(),
        (std::vector<std::string>{
            "Este agendamento foi alterado depois que você o abriu. Nada do que você mudou foi gravado.\n\n"
            "Observação: Marcos (posto BALCAO-2) gravou \"Sem laço.\" em 20/11/2026 às 09:30; você informou"
            " \"Laço verde\".\n\n"
            "Atualize a lista (F5) para ver o agendamento como está agora. Depois refaça as suas"
            " mudanças.",
            HolidayQuestion}));
    EXPECT_EQ(afterTheRefusal, "Sem laço.|0|Marcos");
    EXPECT_EQ(Stored(), "Laço verde|0|Antônia");
}

} // namespace

} // namespace kova::window_test
