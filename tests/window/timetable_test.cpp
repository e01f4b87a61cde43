// "Horários" in the application's own window: the agenda's own screens do what is asked for there.

#include "tests/window/other_desk.hpp"
#include "tests/window/shop.hpp"

#include "agenda/contracts/widgets.hpp"
#include "timetable/timetable_page.hpp"
#include "timetable/timetable_view.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/toolkit.hpp"
#include "toolkits/qt/form.hpp"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <QTimer>

namespace kova::window_test {

namespace {

constexpr const char *List = "frmLista", *Record = "frmFichaCompleta";
/// An appointment of the demonstration on the day before, which is no holiday.
constexpr const char* Day = "2026-11-19";

class TimetableOfTheShop : public Shop {
protected:
    TimetableOfTheShop()
    {
        Execute("update agendamento set situacao = 1, alterado_por = null");
        // Wherever a block goes there is room.
        Execute("update funcionario set agendamentos_simultaneos = 0");
    }

    static timetable::TimetablePage* Page()
    {
        for (QWidget* widget : QApplication::allWidgets()) {
            if (auto* page = dynamic_cast<timetable::TimetablePage*>(widget); page && page->isVisible())
                return page;
        }
        return nullptr;
    }
    static timetable::TimetableView& View() { return Page()->View(); }
    /// What was asked of the agenda has not returned yet.
    static bool AgendaIsAtWork()
    {
        for (QWidget* widget : QApplication::allWidgets()) {
            if (auto* form = dynamic_cast<qt::FormWidget*>(widget))
                return form->Model().GetToolkit().IsInsideEvent();
        }
        return false;
    }
    static std::string Told() { return Page()->findChild<QLabel*>("recado")->text().toStdString(); }
    static void LeavesTheWindow() { Page()->window()->close(); }
    static std::string ListsDay()
    {
        return As<KVDTPicker>(Receptionist::Control(List, "kvdtpDataDeAgendamento"))->Text();
    }

    /// Turns to the timetable of that day by its key.
    Receptionist& ShowsTheDay()
    {
        return receptionist->WaitsFor(List)
            .Presses("Ctrl+T")
            .WaitsUntil("the timetable is there", [] { return Page() != nullptr; })
            .Does("the day", [] {
                Page()->ShowDay({2026, 11, 19});
            });
    }
    /// Puts the cursor on an appointment of a registered customer by the mouse.
    Receptionist& ClicksOn(family::Key number)
    {
        return receptionist->Does("press the block", [number] {
            Page()->ShowAppointment(number, {2026, 11, 19});
            timetable::TimetableView& view = View();
            const QModelIndex block = view.Blocks().index(view.Blocks().RowOf(number));
            QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(block).center());
        });
    }
    Receptionist& Keys(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        return receptionist->Does(
            "keys", [key, modifiers] { QTest::keyClick(QApplication::focusWidget(), key, modifiers); });
    }
    Receptionist& WaitsForTheTimetable()
    {
        return receptionist->WaitsUntil("the timetable has the keyboard again", [] {
            return Page() != nullptr && QApplication::focusWidget() == &View() && !AgendaIsAtWork();
        });
    }

    Receptionist& ReturnsToTheList()
    {
        Keys(Qt::Key_1, Qt::AltModifier);
        return receptionist->WaitsFor(List);
    }

    family::Key SomeAppointment() const
    {
        return std::stoll(Value(std::string("select min(numero) from agendamento where data_inicial = '")
                                + Day
                                + "' and codigo_do_cliente is not null and numero_do_tipo_de_servico >= 4"
                                  " and codigo_do_pacote is null"));
    }
    std::string Status(family::Key number) const
    {
        return Value("select situacao from agendamento where numero = " + std::to_string(number));
    }
};

TEST_F(TimetableOfTheShop, MarksAnAppointmentAsTheListDoes)
{
    const family::Key number = SomeAppointment();
    std::string day;
    ShowsTheDay();
    ClicksOn(number);
    Keys(Qt::Key_2, Qt::ControlModifier);
    WaitsForTheTimetable();
    ReturnsToTheList().Looks([&] { day = ListsDay(); }).Leaves();
    Run();
    EXPECT_EQ(Status(number), "2");
    EXPECT_EQ(day, "20/11/2026") << "the list shows the day that it had shown";
    EXPECT_EQ(Value("select usuario from auditoria where tabela = 'agendamento' and chave = '"
                    + std::to_string(number) + "' order by codigo desc limit 1"),
              "0 - Antônia");
}

TEST_F(TimetableOfTheShop, FindsTheAppointmentBehindTheListsFilters)
{
    const family::Key number = SomeAppointment();
    Integer filter = 0;
    receptionist->WaitsFor(List).Chooses(List, "kvcmbSituacao", 3).WaitsFor(List);
    ShowsTheDay();
    ClicksOn(number);
    Keys(Qt::Key_3, Qt::ControlModifier);
    WaitsForTheTimetable();
    ReturnsToTheList()
        .Looks([&] { filter = As<KVComboBox>(Receptionist::Control(List, "kvcmbSituacao"))->ListIndex(); })
        .Leaves();
    Run();
    EXPECT_EQ(Status(number), "3");
    EXPECT_EQ(filter, 3) << "and the filter stands as it stood";
}

TEST_F(TimetableOfTheShop, ShowsAndChangesAnAppointmentInTheAgendasOwnForm)
{
    const family::Key number = SomeAppointment();
    std::string title;
    ShowsTheDay();
    ClicksOn(number);
    Keys(Qt::Key_Return);
    receptionist->WaitsFor(Record).Looks(
        [&] { title = As<KVTheme>(Receptionist::Control(Record, "KVTheme"))->Caption(); });
    receptionist->Presses("Escape");
    WaitsForTheTimetable();
    Keys(Qt::Key_F6);
    receptionist->WaitsFor(Record)
        .Clicks(Record, "kvtxtObservacaoDoServico")
        .Types("Do quadro.")
        .Clicks(Record, "kvcmdSalvarFecharConfirmar");
    WaitsForTheTimetable().Does("leave", [] { LeavesTheWindow(); });
    Run();
    EXPECT_EQ(title, "Detalhar agendamento completo");
    EXPECT_NE(Value("select observacao from agendamento where numero = " + std::to_string(number))
                  .find("Do quadro."),
              std::string::npos);
}

TEST_F(TimetableOfTheShop, OpensTheEmptyFormWithThePlaceFilledIn)
{
    std::string day, time, employee, wanted;
    ShowsTheDay().Does("a free place", [&] {
        timetable::TimetableView& view = View();
        view.MoveTo(1, 21 * 60 + 30);
        ASSERT_FALSE(view.currentIndex().isValid());
        wanted = view.Blocks().Columns().at(1).nickname;
    });
    Keys(Qt::Key_F2);
    receptionist->WaitsFor(Record)
        .WaitsUntil(
            "the form is filled in",
            [] { return Receptionist::Focused() == "frmFichaCompleta.kvfApelidoOuNomeFantasiaDoCliente"; })
        .Looks([&] {
            day = As<KVDTPicker>(Receptionist::Control(Record, "kvdtpDataInicial"))->Text();
            time = As<KVTime>(Receptionist::Control(Record, "kvtimHoraInicial"))->Text();
            employee = As<KVComboBox>(Receptionist::Control(Record, "kvcmbFuncionarios"))->Text();
        });
    receptionist->Clicks(Record, "kvcmdCancelarAlterar");
    WaitsForTheTimetable().Does("leave", [] { LeavesTheWindow(); });
    Run();
    EXPECT_EQ(day, "19/11/2026");
    EXPECT_EQ(time, "21:30");
    EXPECT_EQ(employee, wanted);
}

TEST_F(TimetableOfTheShop, DragsABlockAndTakesItBack)
{
    const family::Key number = SomeAppointment();
    const std::string where = "select hora_inicial from agendamento where numero = " + std::to_string(number);
    const std::string before = Value(where);
    std::string after;
    ShowsTheDay();
    ClicksOn(number);
    Keys(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    Keys(Qt::Key_Return);
    receptionist->Answers("Alt+S");
    WaitsForTheTimetable().Does("look", [&] { after = Value(where); });
    Keys(Qt::Key_Z, Qt::ControlModifier);
    WaitsForTheTimetable().Does("leave", [] { LeavesTheWindow(); });
    Run();
    EXPECT_NE(after, before);
    EXPECT_EQ(Value(where), before);
}

TEST_F(TimetableOfTheShop, AsksAboutAHolidayToWhichABlockIsMoved)
{
    const family::Key number = SomeAppointment();
    const std::string where = "select data_inicial from agendamento where numero = " + std::to_string(number);
    std::string afterNo;
    const auto moves = [&](const char* answer) {
        ClicksOn(number);
        Keys(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
        Keys(Qt::Key_Return);
        receptionist->Answers("Alt+S").Answers(answer);
        WaitsForTheTimetable();
    };
    ShowsTheDay().Does("the employee's week", [&] {
        auto* employee = Page()->findChild<QComboBox*>(QStringLiteral("funcionario"));
        employee->setCurrentIndex(employee->findData(std::stoi(Value(
            "select codigo_do_funcionario from agendamento where numero = " + std::to_string(number)))));
        View().setFocus();
    });
    moves("Alt+N");
    receptionist->Does("look", [&] { afterNo = Value(where); });
    moves("Alt+S");
    receptionist->Does("leave", [] { LeavesTheWindow(); });
    Run();
    EXPECT_EQ(afterNo, Day);
    EXPECT_EQ(Value(where), "2026-11-20");
    ASSERT_EQ(receptionist->Boxes().size(), 4U);
    EXPECT_EQ(receptionist->Boxes()[1],
              "A data 20/11/2026 é feriado (Dia da Consciência Negra). Confirma o agendamento?");
}

TEST_F(TimetableOfTheShop, ShowsWhatAnotherDeskHasBookedByItself)
{
    int before = 0;
    family::Key number = 0;
    ShowsTheDay()
        .Does("today",
              [] {
                  Page()->ShowDay({2026, 11, 20});
              })
        .Does("another desk books",
              [&] {
                  before = View().Blocks().rowCount();
                  number = OtherDesk(Database()).Books();
              })
        .WaitsUntil("the block is there", [&] { return View().Blocks().RowOf(number) >= 0; })
        .Does("look", [&] {
            EXPECT_EQ(View().Blocks().rowCount(), before + 1);
            LeavesTheWindow();
        });
    Run();
}

TEST_F(TimetableOfTheShop, StaysAsItIsWhileABlockIsHeld)
{
    const family::Key number = SomeAppointment();
    family::Key other = 0;
    bool wasThere = true;
    ShowsTheDay();
    ClicksOn(number).Does(
        "hold it", [] { QTest::keyClick(&View(), Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier); });
    receptionist
        ->Does("another desk books",
               [&] {
                   OtherDesk desk(Database());
                   other = desk.Books();
                   desk.Changes(other, [](family::AppointmentInput& input) {
                       input.startDate = input.endDate = "19/11/2026";
                   });
               })
        .WaitsUntil("the page has heard of it",
                    [] { return Page()->findChild<QTimer*>(QStringLiteral("lerEmBreve"))->isActive(); })
        .Does("look", [&] { wasThere = View().Blocks().RowOf(other) >= 0; });
    Keys(Qt::Key_Escape);
    receptionist->WaitsUntil("the block is there", [&] { return View().Blocks().RowOf(other) >= 0; })
        .Does("leave", [] { LeavesTheWindow(); });
    Run();
    EXPECT_FALSE(wasThere);
}

TEST_F(TimetableOfTheShop, SaysThatAnAppointmentIsGone)
{
    const family::Key number = SomeAppointment();
    std::string told;
    ShowsTheDay();
    ClicksOn(number).Does("gone", [&] {
        Execute("delete from pre_venda where numero_do_agendamento = " + std::to_string(number));
        Execute("delete from agendamento where numero = " + std::to_string(number));
    });
    Keys(Qt::Key_F4);
    receptionist->WaitsUntil("it is told", [] { return !Told().empty(); }).Does("look", [&] {
        told = Told();
        LeavesTheWindow();
    });
    Run();
    EXPECT_EQ(told, "O agendamento não está mais nesse dia: outro posto pode tê-lo mudado.");
}

} // namespace

} // namespace kova::window_test
