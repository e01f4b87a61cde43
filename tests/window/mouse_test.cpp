// A receptionist with the mouse in hand, in the whole application.

#include "tests/window/appointment_book.hpp"

#include "agenda/contracts/widgets.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/grid/grid.hpp"
#include "toolkits/qt/grid/grid_canvas.hpp"

#include <QWindow>

namespace kova::window_test {

namespace {

using Rows = std::vector<std::string>;

constexpr const char* List = "frmLista";
constexpr const char* Grid = "msfgGrade";
constexpr Long LaunchNumber = 1;
constexpr Long AnimalName = 13;

MSFlexGrid& GridOfTheList() { return *As<MSFlexGrid>(Receptionist::Control(List, Grid)); }

/// What a person sees of the row that is chosen.
struct ChosenRow {
    /// The number of the appointment in the selected row.
    std::string number;
    /// How far the row's buttons stand from it, in pixels; nothing where they are not on show.
    std::optional<int> buttonsAway;
    std::string animal;
    std::string animalInThePanel;
};

ChosenRow LookAtChosenRow()
{
    const MSFlexGrid& grid = GridOfTheList();
    ChosenRow row;
    row.number = grid.TextMatrix(grid.Row(), LaunchNumber);
    row.animal = grid.TextMatrix(grid.Row(), AnimalName);
    row.animalInThePanel = As<Label>(Receptionist::Control(List, "lblNomeDoAnimal"))->Caption();
    const QWidget* button = hand::ControlOnScreen(List, "kvcmdAlterar");
    const auto* canvas = dynamic_cast<const qt::GridCanvas*>(hand::ControlOnScreen(List, Grid));
    if (button->isVisible())
        row.buttonsAway = button->mapToGlobal(QPoint()).y()
            - canvas->mapToGlobal(canvas->RowArea(grid.Row()).topLeft()).y();
    return row;
}

class ListByMouse : public Shop {
protected:
    ListByMouse() { Execute("update agendamento set situacao = 1"); }

    /// The mouse rests on the third row, and stays there.
    void RestsOnTheThirdRow() { receptionist->WaitsFor(List).Hovers(List, Grid, 3); }
    /// The row under the mouse is the chosen one: its buttons and the panel tell of it.
    void FindsThirdRowChosen()
    {
        receptionist->WaitsFor(List).Looks([this] {
            const ChosenRow row = LookAtChosenRow();
            EXPECT_EQ(GridOfTheList().Row(), 3);
            EXPECT_TRUE(row.buttonsAway && std::abs(*row.buttonsAway) <= 1)
                << row.buttonsAway.value_or(-9999);
            EXPECT_EQ(row.animalInThePanel, row.animal);
            chosen_ = row.number;
        });
    }
    std::string StatusOf(const std::string& number) const
    {
        return Value("select situacao from agendamento where numero = " + number);
    }

    std::string chosen_;
};

TEST_F(ListByMouse, ChoosesRowsOfEachFilterAgainAndAgain)
{
    receptionist->WaitsFor(List);
    std::vector<Integer> chosen;
    for (const char* combo : {"kvcmbSituacao", "kvcmbTiposDeServicos", "kvcmbFuncionarios"}) {
        for (const int row : {1, 2, 0}) {
            receptionist->Chooses(List, combo, row).WaitsFor(List).Looks([&chosen, combo] {
                chosen.push_back(As<KVComboBox>(Receptionist::Control(List, combo))->ListIndex());
            });
        }
    }
    receptionist->Leaves();
    Run();
    EXPECT_EQ(chosen, (std::vector<Integer>{1, 2, 0, 1, 2, 0, 1, 2, 0}));
}

TEST_F(ListByMouse, GoesToADayOfTheCalendar)
{
    std::string first;
    receptionist->WaitsFor(List).PicksDay(List, "kvdtpDataDeAgendamento", 24).WaitsFor(List).Looks([&] {
        first = GridOfTheList().TextMatrix(1, LaunchNumber);
    });
    receptionist->PicksDay(List, "kvdtpDataDeAgendamento", 20).WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(Value("select data_inicial from agendamento where numero = " + first), "2026-11-24");
}

TEST_F(ListByMouse, CancelsTheRowUnderTheMouseBehindAnotherDayByKey)
{
    RestsOnTheThirdRow();
    receptionist->Presses("Alt+Right");
    FindsThirdRowChosen();
    receptionist->Clicks(List, "kvcmdMarcarAgendamentoComoCancelado").WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(Query("select numero from agendamento where situacao = 3"), Rows{chosen_});
    EXPECT_EQ(Value("select data_inicial from agendamento where numero = " + chosen_), "2026-11-21");
}

TEST_F(ListByMouse, ChoosesTheRowUnderTheMouseBehindDaysByKey)
{
    RestsOnTheThirdRow();
    receptionist->Presses("Alt+Right");
    FindsThirdRowChosen();
    receptionist->Presses("Alt+Left");
    FindsThirdRowChosen();
    receptionist->Leaves();
    Run();
}

TEST_F(ListByMouse, ChoosesTheRowUnderTheMouseBehindAPageByKey)
{
    Rows chosen;
    RestsOnTheThirdRow();
    for (const char* key : {"Ctrl+End", "Ctrl+Home", "F5"}) {
        receptionist->Presses(key);
        FindsThirdRowChosen();
        receptionist->Looks([&] { chosen.push_back(chosen_); });
    }
    receptionist->Leaves();
    Run();
    ASSERT_EQ(chosen.size(), 3U);
    EXPECT_NE(chosen[0], chosen[1]);
    EXPECT_EQ(chosen[1], chosen[2]);
}

TEST_F(ListByMouse, AttendsTheRowOfThePencilBehindASave)
{
    std::string altered;
    RestsOnTheThirdRow();
    receptionist->Looks([&] { altered = LookAtChosenRow().number; });
    receptionist->Clicks(List, "kvcmdAlterar").WaitsUntil("the record is open", [] {
        const toolkit::FormModel* form = Receptionist::FormInFront();
        return form && form->Design().name.starts_with("frmFicha") && form->Refusal().empty();
    });
    receptionist->Presses("Escape").WaitsFor(List);
    FindsThirdRowChosen();
    receptionist->Clicks(List, "kvcmdMarcarAgendamentoComoAtendido").WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(chosen_, altered);
    EXPECT_EQ(Query("select numero from agendamento where situacao = 2"), Rows{altered});
}

TEST_F(ListByMouse, StandsOnOneRowBehindADeletion)
{
    RestsOnTheThirdRow();
    receptionist->Presses("F8").WaitsUntil("the record is open", [] {
        const toolkit::FormModel* form = Receptionist::FormInFront();
        return form && form->Design().name.starts_with("frmFicha") && form->Refusal().empty();
    });
    receptionist->Presses("Ctrl+S");
    FindsThirdRowChosen();
    receptionist->Leaves();
    Run();
    EXPECT_EQ(Value("select count(*) from auditoria where operacao = 'exclusao' and tabela = 'agendamento'"),
              "1");
}

class RecordByMouse : public AppointmentBook {
protected:
    /// Today at seven, with the clock at nine and the focus still in the box.
    void EntersPastStart() { receptionist->Presses("Alt+H").Types("20112026").Presses("Tab").Types("0700"); }
    void FillsRecord()
    {
        OpensNewRecord();
        EntersCustomerAndAnimal();
        EntersService("tesoura");
        EntersEmployee("J");
        EntersPastStart();
    }
    /// The record is still open, and nothing was stored.
    void FindsNothingSaved(const char* form)
    {
        receptionist->WaitsFor(form).Looks([this] { EXPECT_EQ(Appointments(), Rows{}); });
        // The question comes again, and holds nobody back from leaving.
        receptionist->Clicks(form, "kvcmdCancelarAlterar").Answers("Alt+N").WaitsFor(List).Leaves();
        Run();
        EXPECT_EQ(Appointments(), Rows{});
        const std::string question = "Hora inicial é menor que o hora atual. Confirma?";
        EXPECT_EQ(receptionist->Boxes(), (Rows{question, question}));
    }
};

TEST_F(RecordByMouse, IsNotSavedByThePressThatAsksAboutAPastStart)
{
    FillsRecord();
    receptionist->Clicks(Record, "kvcmdSalvarFecharConfirmar").AnswersByMouse(Reply::No);
    FindsNothingSaved(Record);
}

TEST_F(RecordByMouse, IsNotSavedByTheKeyThatAsksAboutAPastStart)
{
    FillsRecord();
    receptionist->Presses("Ctrl+S").Answers("Alt+N");
    FindsNothingSaved(Record);
}

TEST_F(RecordByMouse, TakesAServiceByADoubleClickThatPressesNothingBeneath)
{
    constexpr const char* Picker = "frmPesquisaDeServicos";
    std::string service;
    OpensNewRecord();
    EntersCustomerAndAnimal();
    receptionist->Presses("Alt+M").Types("banho").Presses("Return").WaitsFor(Picker);
    // The picker's first row lies over the record's "Cancelar".
    receptionist->Looks([] {
        QWidget* grid = hand::ControlOnScreen(Picker, Grid);
        const QWidget* beneath = hand::ControlOnScreen(Record, "kvcmdCancelarAlterar");
        const QPoint row = grid->mapToGlobal(hand::RowOf(*grid, 1).place);
        grid->window()->move(grid->window()->pos() + beneath->mapToGlobal(beneath->rect().center()) - row);
    });
    receptionist->DoubleClicksRow(Picker, Grid, 1).WaitsFor(Record).Looks([&] {
        service = As<KVFind>(Receptionist::Control(Record, "kvfNomeDoServico"))->Text();
    });
    receptionist->Clicks(Record, "kvcmdCancelarAlterar").WaitsFor(List).Leaves();
    Run();
    EXPECT_NE(service, "");
    EXPECT_NE(service, "banho");
}

TEST_F(RecordByMouse, IsLeftByEscapeFromADetailViewWithoutBeingChanged)
{
    std::string caption;
    OpensNewRecord();
    EntersCustomerAndAnimal();
    EntersService("tesoura");
    EntersEmployee("J");
    EntersStart("20112026", "1500");
    // The day is a holiday.
    receptionist->Clicks(Record, "kvcmdSalvarFecharConfirmar").Answers("Alt+S").WaitsFor(List);
    receptionist->Hovers(List, Grid, 1);
    receptionist->Clicks(List, "kvcmdDetalhar").WaitsFor(Record).Presses("Escape").WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(Value("select count(*) from auditoria where operacao = 'alteracao'"), "0");
}

TEST_F(RecordByMouse, KeepsWhatWasTypedBehindTheFirstEscape)
{
    std::string focus;
    OpensNewRecord();
    EntersCustomerAndAnimal();
    receptionist->Presses("Alt+M").Types("banho").Presses("Escape").WaitsFor(Record).Looks(
        [&] { focus = Receptionist::Focused(); });
    receptionist->Presses("Escape").WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(focus, "frmFichaCompleta.kvcmdCancelarAlterar");
}

} // namespace

} // namespace kova::window_test
