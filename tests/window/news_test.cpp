// What other desks change of the day that the list shows.

#include "agenda/contracts/widgets.hpp"
#include "system/computer_name.hpp"
#include "tests/window/appointment_book.hpp"
#include "tests/window/other_desk.hpp"
#include "toolkits/common/grid/grid.hpp"
#include "toolkits/common/grid/navigation_bar.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QTabBar>
#include <QTest>
#include <QTimer>

namespace kova::window_test {

namespace {

constexpr const char* List = "frmLista";
/// Columns of the list.
constexpr Long Number = 1, Remark = 30;

QWidget* Window()
{
    for (QWidget* top : QApplication::topLevelWidgets()) {
        if (top->findChild<QWidget*>(QStringLiteral("container")))
            return top;
    }
    return nullptr;
}

QAbstractButton& Bar() { return *Window()->findChild<QAbstractButton*>(QStringLiteral("novidades")); }

/// "" where the bar is not there.
std::string Told() { return Bar().isVisible() ? Bar().accessibleName().toStdString() : ""; }

bool IsWaiting() { return Window()->findChild<QTimer*>(QStringLiteral("novidadesEsperam"))->isActive(); }

std::string Today(int count)
{
    return "A agenda de hoje mudou em outro posto (" + std::to_string(count) + "). Ctrl+R atualiza a lista.";
}

MSFlexGrid& Grid() { return *As<MSFlexGrid>(Receptionist::Control(List, "msfgGrade")); }

/// What stands in a column of the row that is reached.
std::string Cell(Long column) { return Grid().TextMatrix(Grid().Row(), column); }

void WaitsForNews(Receptionist& receptionist, const std::string& words)
{
    receptionist.WaitsUntil("the bar says: " + words, [words] { return Told() == words; });
}

void ClicksBar()
{
    const QPoint middle = Bar().rect().center();
    QTest::mouseClick(Window()->windowHandle(), Qt::LeftButton, {}, Bar().mapTo(Window(), middle));
}

} // namespace

class NewsOfOtherDesks : public AppointmentBook {
protected:
    NewsOfOtherDesks() : other_(Database()), number_(other_.Books()) { }

    void OtherWrites(const std::string& remark)
    {
        other_.Changes(number_, [remark](auto& input) { input.remark = remark; });
    }

    OtherDesk other_;
    family::Key number_;
};

TEST_F(NewsOfOtherDesks, AreCountedAboveTheListWhichStaysAsItIsUntilItsKeyReadsTheDay)
{
    std::string before, shown, after, toldAfter;
    Long rowsBefore = 0, rows = 0;
    receptionist->WaitsFor(List).Presses("F7").Presses("Down").Looks([&] {
        before = Told();
        OtherWrites("Laço verde.");
    });
    WaitsForNews(*receptionist, Today(1));
    receptionist->Does("another change", [&] { other_.Books("22:00", "22:45"); });
    WaitsForNews(*receptionist, Today(2));
    receptionist->Does("look", [&] {
        shown = Cell(Remark);
        rowsBefore = Grid().Rows();
    });
    receptionist->Presses("Ctrl+R").WaitsFor(List).Looks([&] {
        toldAfter = Told();
        after = Cell(Remark);
        rows = Grid().Rows();
    });
    receptionist->Leaves();
    Run();
    EXPECT_EQ(before, "");
    EXPECT_EQ(shown, "Laço azul.");
    EXPECT_EQ(rowsBefore, 2);
    EXPECT_EQ(toldAfter, "");
    EXPECT_EQ(after, "Laço verde.");
    EXPECT_EQ(rows, 3);
}

TEST_F(NewsOfOtherDesks, AreReadByAPressOfTheBarWhichMovesNothingAndTakesNoKeyboard)
{
    QRect place, placeThen;
    std::string focus, focusThen, toldAfter;
    receptionist->WaitsFor(List).Presses("F3").Looks([&] {
        place = Bar().parentWidget()->findChild<QTabBar*>()->geometry().united(
            Window()->findChild<QWidget*>(QStringLiteral("container"))->geometry());
        focus = Receptionist::Focused();
        OtherWrites("Laço verde.");
    });
    WaitsForNews(*receptionist, Today(1));
    receptionist->Does("look", [&] {
        placeThen = Bar().parentWidget()->findChild<QTabBar*>()->geometry().united(
            Window()->findChild<QWidget*>(QStringLiteral("container"))->geometry());
        focusThen = Receptionist::Focused();
    });
    receptionist->Looks(ClicksBar).WaitsFor(List).Looks([&] { toldAfter = Told(); });
    receptionist->Leaves();
    Run();
    EXPECT_EQ(focus, "frmLista.kvfndPesquisar");
    EXPECT_EQ(focusThen, focus);
    EXPECT_EQ(placeThen, place);
    EXPECT_EQ(toldAfter, "");
}

TEST_F(NewsOfOtherDesks, WaitWhileARecordIsOpen)
{
    std::string during;
    OpensNewRecord();
    receptionist->Looks([&] { OtherWrites("Laço verde."); });
    receptionist->WaitsUntil("the news wait", IsWaiting).Looks([&] { during = Told(); });
    receptionist->Presses("Escape").WaitsFor(List);
    WaitsForNews(*receptionist, Today(1));
    receptionist->Leaves();
    Run();
    EXPECT_EQ(during, "");
}

TEST_F(NewsOfOtherDesks, AreNotWhatThisProgramWritesButWhatAnotherOneDoesOnThisComputer)
{
    const std::string undelete = std::string(AGENDA_DATA) + " undelete '" + Database() + "' "
        + std::to_string(number_) + " >/dev/null";
    receptionist->WaitsFor(List).Looks([&] {
        OtherDesk here(Database(), system::ComputerName());
        here.Changes(number_, [](auto& input) { input.remark = "Daqui."; });
        here.Deletes(number_);
    });
    // What is written behind is told behind.
    receptionist->Does("another program", [&] { EXPECT_EQ(std::system(undelete.c_str()), 0); });
    WaitsForNews(*receptionist, Today(1));
    receptionist->Leaves();
    Run();
}

TEST_F(NewsOfOtherDesks, AreToldApartFromWhatOtherAreasOfTheWindowWrite)
{
    receptionist->WaitsFor(List).Looks([&] {
        OtherDesk here(Database(), system::ComputerName());
        here.Changes(number_, [](auto& input) { input.remark = "Dos horários."; });
    });
    WaitsForNews(*receptionist, "A agenda de hoje mudou em outra tela (1). Ctrl+R atualiza a lista.");
    receptionist->Looks([&] { OtherWrites("Laço verde."); });
    WaitsForNews(*receptionist, Today(1));
    receptionist->Presses("Ctrl+R").WaitsFor(List).Looks([] { EXPECT_EQ(Told(), ""); });
    receptionist->Leaves();
    Run();
}

TEST_F(NewsOfOtherDesks, AreThoseOfTheDayOnShow)
{
    receptionist->WaitsFor(List).Presses("Alt+Right").WaitsFor(List).Looks([&] {
        OtherWrites("De hoje.");
        other_.Changes(number_, [](auto& input) { input.startDate = input.endDate = "21/11/2026"; });
    });
    WaitsForNews(*receptionist, "A agenda de 21/11/2026 mudou em outro posto (1). Ctrl+R atualiza a lista.");
    receptionist->Presses("Alt+Left").WaitsFor(List).Looks([&] { EXPECT_EQ(Told(), ""); });
    receptionist->Leaves();
    Run();
}

TEST_F(NewsOfOtherDesks, AreAwayWithTheListThatTheyAreAbout)
{
    receptionist->WaitsFor(List).Looks([&] { OtherWrites("Laço verde."); });
    WaitsForNews(*receptionist, Today(1));
    receptionist->Does("another tab", [] { Window()->findChild<QTabBar*>()->setCurrentIndex(1); });
    receptionist->WaitsUntil("the bar is away", [] { return Told().empty(); });
    receptionist->Does("the agenda", [] { Window()->findChild<QTabBar*>()->setCurrentIndex(0); });
    WaitsForNews(*receptionist, Today(1));
    receptionist->Leaves();
    Run();
}

/// On the day of the demonstration, which has several pages.
class NewsOfAFullDay : public Shop {
protected:
    OtherDesk other_{Database()};
};

TEST_F(NewsOfAFullDay, AreReadSoThatWhoeverStoodAtAnAppointmentStandsThereStill)
{
    std::string number, thenNumber;
    Long row = 0, thenRow = 0;
    receptionist->WaitsFor(List).Presses("F7").Presses("Ctrl+End").Presses("Up").Looks([&] {
        number = Cell(Number);
        row = Grid().Row();
        other_.Changes(other_.Books(), [](auto& input) {
            input.startTime = "00:05";
            input.endTime = "00:15";
        });
    });
    WaitsForNews(*receptionist, Today(2));
    receptionist->Presses("Ctrl+R").WaitsFor(List).Looks([&] {
        thenNumber = Cell(Number);
        thenRow = Grid().Row();
    });
    receptionist->Leaves();
    Run();
    EXPECT_EQ(thenNumber, number);
    EXPECT_EQ(thenRow, row + 1) << "another one has come before it";
}

TEST_F(NewsOfAFullDay, AreReadSoThatThePageStaysWhereTheAppointmentIsGone)
{
    const auto first = [] {
        return As<KVNavigationBar>(Receptionist::Control(List, "kvnbBarraDeNavegacao"))->FirstRecord();
    };
    Double before = 0, after = 0;
    receptionist->WaitsFor(List).Presses("F7").Looks(
        [] { dynamic_cast<toolkit::GridModel&>(Grid()).UserTurnsTo(toolkit::NavigationBarModel::NextPage); });
    receptionist->Presses("Down").Looks([&] {
        before = first();
        other_.Changes(std::stoll(Cell(Number)), [](auto& input) {
            input.startDate = input.endDate = "02/12/2026";
            input.startTime = "23:10";
            input.endTime = "23:20";
        });
    });
    WaitsForNews(*receptionist, Today(1));
    receptionist->Presses("Ctrl+R").WaitsFor(List).Looks([&] { after = first(); });
    receptionist->Leaves();
    Run();
    EXPECT_GT(before, 1);
    EXPECT_EQ(after, before);
}

} // namespace kova::window_test
