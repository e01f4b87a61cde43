// A registered customer on the phone: found, booked, refused, moved and cancelled without touching the mouse.

#include "tests/window/appointment_book.hpp"

#include "agenda/contracts/widgets.hpp"

namespace kova::window_test {

namespace {

using Rows = std::vector<std::string>;
using FullRecord = AppointmentBook;

constexpr Colour Red = 255;

TEST_F(FullRecord, BooksACustomerPickedAmongSeveralOfTheName)
{
    Rows offered;
    OpensNewRecord();
    receptionist->Presses("Alt+N").Types("quares").Presses("Return").WaitsFor("frmPesquisaDeClientes");
    receptionist->Looks([&] {
        auto* grid = As<MSFlexGrid>(Receptionist::Control("frmPesquisaDeClientes", "msfgGrade"));
        for (Long row = 1; row < grid->Rows(); ++row)
            offered.push_back(grid->TextMatrix(row, 3));
    });
    receptionist->Presses("Down").Presses("Return").WaitsFor(Record).Types("T");
    EntersService("tesoura");
    EntersStart("24112026", "1500");
    EntersEmployee("J");
    SavesAndLeaves();
    Run();
    EXPECT_EQ(offered, (Rows{"Zulmar Quaresma", "Zulmira Quaresma"}));
    EXPECT_EQ(receptionist->Boxes(), Rows{});
    EXPECT_EQ(Appointments(), Rows{"2026-11-24 15:00|2026-11-24 16:30|10|14|Tosa na tesoura|Juca"});
    EXPECT_EQ(Value("select situacao, tipo_do_agendamento, incluido_por from agendamento"), "1|0|Antônia");
}

TEST_F(FullRecord, BooksTheAnimalOfAMicrochipForItsOwner)
{
    OpensNewRecord();
    // The key leads to the option, which Enter chooses.
    receptionist->Presses("Alt+L")
        .Presses("Return")
        .Presses("Tab")
        .Types("900123000000001")
        .Presses("Return")
        .WaitsFor(Record);
    EntersService("tesoura");
    EntersStart("24112026", "0930");
    EntersEmployee("B");
    SavesAndLeaves();
    Run();
    EXPECT_EQ(receptionist->Boxes(), Rows{});
    EXPECT_EQ(Appointments(), Rows{"2026-11-24 09:30|2026-11-24 11:00|1|1|Tosa na tesoura|Bia"});
}

TEST_F(FullRecord, MovesASundayToTheMondayBehindItWhenAsked)
{
    OpensNewRecord();
    EntersCustomerAndAnimal();
    EntersService("tesoura");
    EntersStart("22112026", "1500");
    EntersEmployee("J");
    receptionist->Presses("Ctrl+S").Answers("Alt+N").Answers("Alt+S").WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(receptionist->Boxes(),
              (Rows{"A data 22/11/2026 é um domingo. Confirma o agendamento?",
                    "Gostaria de reagendar para o próximo dia útil?"}));
    EXPECT_EQ(Appointments(), Rows{"2026-11-23 15:00|2026-11-23 16:30|10|14|Tosa na tesoura|Juca"});
}

TEST_F(FullRecord, StaysOpenOnARefusedFieldAndSavesOnceItIsCorrected)
{
    std::string focus;
    Colour marked = 0;
    Rows savedBefore{"none looked at"};
    OpensNewRecord();
    EntersCustomerAndAnimal();
    EntersService("tesoura");
    EntersStart("24112026", "1500");
    receptionist->Presses("Ctrl+S").Answers("Return").WaitsFor(Record).Looks([&] {
        focus = Receptionist::Focused();
        marked = As<Label>(Receptionist::Control(Record, "lblNomeDoFuncionario"))->ForeColor();
        savedBefore = Appointments();
    });
    receptionist->Types("J");
    SavesAndLeaves();
    Run();
    EXPECT_EQ(receptionist->Boxes(), Rows{"Selecione o(a) funcionário(a)."});
    EXPECT_EQ(focus, "frmFichaCompleta.kvcmbFuncionarios");
    EXPECT_EQ(marked, Red);
    EXPECT_EQ(savedBefore, Rows{});
    EXPECT_EQ(Appointments(), Rows{"2026-11-24 15:00|2026-11-24 16:30|10|14|Tosa na tesoura|Juca"});
}

TEST_F(FullRecord, CancelsAWholePackageButForWhatWasAttended)
{
    Rows booked;
    // The list goes to the 24th, so that the first bath is its only row.
    receptionist->WaitsFor(List);
    for (int day = 0; day < 4; ++day)
        receptionist->Presses("Alt+Right").WaitsFor(List);
    OpensNewRecord();
    EntersCustomerAndAnimal();
    EntersService("pacote de 4");
    EntersStart("24112026", "1500");
    EntersEmployee("J");
    AsksForRepetition();
    receptionist->Types("3").Presses("Ctrl+S").WaitsFor(List).Looks([&] {
        booked = Query("select data_inicial, situacao, case when codigo_do_pacote is null then 1 else 0 end "
                       "from agendamento"
                       " order by data_inicial");
        Execute("update agendamento set situacao = 2 where data_inicial = '2026-12-01'");
    });
    receptionist->Presses("F7").Presses("Down").Presses("F6").WaitsFor(Record).Presses("Alt+I").Types("C");
    receptionist->Presses("Ctrl+S").Answers("Alt+S").WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(booked, (Rows{"2026-11-24|1|0", "2026-12-01|1|0", "2026-12-08|1|0", "2026-12-15|1|0"}));
    EXPECT_EQ(receptionist->Boxes(),
              Rows{"Este agendamento pertence a um pacote de banho e tosa.\n\nDeseja alterar a situação para"
                   " 'CANCELADO' de TODOS os agendamentos deste pacote que não foram atendidos?"});
    EXPECT_EQ(Query("select data_inicial, situacao from agendamento order by data_inicial"),
              (Rows{"2026-11-24|3", "2026-12-01|2", "2026-12-08|3", "2026-12-15|3"}));
    EXPECT_EQ(Value("select count(distinct codigo_do_pacote) from agendamento"), "1");
}

} // namespace

} // namespace kova::window_test
