#include "tests/unit/timetable/timetable_fixture.hpp"

#include "timetable/block_model.hpp"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QMenu>
#include <QPushButton>
#include <QTimer>

namespace kova::timetable::test {

namespace {

constexpr int Ana = 0, Bia = 1; // their columns, by nickname
using Page = HorariosTest;

TEST_F(Page, ShowsTodayWithTheCursorAtThisHour)
{
    Open();
    EXPECT_EQ(TextOf("lugar"), "Ana, 19/11/2026, 10:15: livre");
    EXPECT_EQ(View().Blocks().Columns().size(), 2U);
}

TEST_F(Page, IsWalkedThroughByKeys)
{
    Book(1, "10:00", "11:00");
    Open();
    View().MoveTo(Bia, 9 * 60 + 45);
    Keys(Qt::Key_Down);
    EXPECT_EQ(Current(),
              "Bia, 19/11/2026, das 10:00 às 11:00: Rex, de Carla, Banho de teste. Situação: Agendado.");
    Keys(Qt::Key_Down);
    EXPECT_EQ(TextOf("lugar"), "Bia, 19/11/2026, 11:00: livre") << "the whole block is passed by";
    Keys(Qt::Key_Up);
    EXPECT_NE(Current(), "");
    Keys(Qt::Key_Up);
    EXPECT_EQ(TextOf("lugar"), "Bia, 19/11/2026, 09:45: livre");
    Keys(Qt::Key_Left);
    EXPECT_EQ(TextOf("lugar"), "Ana, 19/11/2026, 09:45: livre");
    Keys(Qt::Key_PageUp);
    EXPECT_EQ(TextOf("lugar"), "Ana, 19/11/2026, 08:45: livre");
    Keys(Qt::Key_Home);
    EXPECT_EQ(TextOf("lugar"), "Ana, 19/11/2026, 00:00: A loja está fechada");
    Keys(Qt::Key_End);
    EXPECT_EQ(TextOf("lugar"), "Ana, 19/11/2026, 23:45: A loja está fechada");
    Keys(Qt::Key_Right);
    Keys(Qt::Key_Right);
    EXPECT_EQ(TextOf("lugar"), "Bia, 19/11/2026, 23:45: A loja está fechada") << "there is no third column";
}

TEST_F(Page, IsPointedAtByMouse)
{
    const long long number = Book(2, "10:00", "10:30");
    Open();
    Click(PlaceOf(Bia, 9 * 60));
    EXPECT_EQ(TextOf("lugar"), "Bia, 19/11/2026, 09:00: livre");
    Click(RectOf(number).center());
    EXPECT_NE(Current(), "");
    EXPECT_EQ(View().Column(), Ana);
}

TEST_F(Page, TurnsFromDayToDayAndToAnEmployeesWeek)
{
    Book(1, "10:00", "11:00", 1, "2026-11-20");
    Open();
    Keys(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(page_->Day(), (Date{2026, 11, 20}));
    EXPECT_EQ(View().Blocks().rowCount(), 1);
    Keys(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(View().Blocks().rowCount(), 0);
    auto* employee = page_->findChild<QComboBox*>(QStringLiteral("funcionario"));
    employee->setCurrentIndex(employee->findText(QStringLiteral("Bia")));
    ASSERT_EQ(View().Blocks().Columns().size(), 7U);
    EXPECT_EQ(View().Blocks().Columns().front().date, (Date{2026, 11, 16})) << "a Monday";
    EXPECT_EQ(View().Blocks().rowCount(), 1);
    View().setFocus();
    Keys(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(page_->Day(), (Date{2026, 11, 26}));
    QTest::mouseClick(page_->findChild<QPushButton*>(QStringLiteral("hoje")), Qt::LeftButton);
    EXPECT_EQ(page_->Day(), now_.date);
}

TEST_F(Page, LeavesCancelledOnesOutUntilTheyAreWanted)
{
    Book(1, "10:00", "11:00", 3);
    Open();
    EXPECT_EQ(View().Blocks().rowCount(), 0);
    page_->findChild<QCheckBox*>(QStringLiteral("cancelados"))->click();
    EXPECT_EQ(View().Blocks().rowCount(), 1);
}

TEST_F(Page, HasLinesOfAsManyMinutesAsAreWanted)
{
    const long long number = Book(1, "10:00", "11:00");
    Open();
    const int before = RectOf(number).height();
    auto* step = page_->findChild<QComboBox*>(QStringLiteral("intervalo"));
    step->setCurrentIndex(step->findData(5));
    EXPECT_GT(RectOf(number).height(), 2 * before);
    step->setCurrentIndex(step->findData(60));
    EXPECT_LT(RectOf(number).height(), before);
}

TEST_F(Page, ReadsAnewWhatOthersHaveBooked)
{
    Open();
    Book(1, "10:00", "11:00");
    Keys(Qt::Key_F5);
    EXPECT_EQ(View().Blocks().rowCount(), 1);
}

TEST_F(Page, SaysWhyItCannotBeRead)
{
    Open();
    Stored("alter table agendamento rename to outra");
    Keys(Qt::Key_Right, Qt::AltModifier);
    EXPECT_NE(TextOf("recado"), "");
    EXPECT_EQ(View().Blocks().Columns().size(), 0U);
    Keys(Qt::Key_Down);
    Click(QPoint(300, 300));
}

class Moving : public HorariosTest { };

TEST_F(Moving, ByMouseAsksAndWrites)
{
    const long long number = Book(1, "10:00", "11:00");
    Open();
    View().ScrollTo(9 * 60);
    Answer({"Sim"});
    const QPoint grip = RectOf(number).topLeft() + QPoint(20, 8);
    const GridMeasures& measures = View().Measures();
    Drag(grip, grip + QPoint(-measures.columnWidth, measures.HeightOf(30)));
    EXPECT_EQ(Now(number), "2026-11-19 10:30 11:30 2");
    EXPECT_EQ(boxes_,
              (std::vector<std::string>{"Mover o agendamento de Rex, de Carla?\n\n"
                                        "De: Bia, 19/11/2026, das 10:00 às 11:00\n"
                                        "Para: Ana, 19/11/2026, das 10:30 às 11:30"}));
    EXPECT_NE(TextOf("recado").find("Ctrl+Z desfaz"), std::string::npos);
    EXPECT_EQ(View().Column(), Ana) << "the cursor goes along";
    Keys(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Now(number), "2026-11-19 10:00 11:00 1");
    EXPECT_NE(TextOf("recado").find("voltou para Bia"), std::string::npos);
    Keys(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(TextOf("recado"), "Nenhuma mudança foi feita aqui que se possa desfazer.");
}

TEST_F(Moving, ByItsLowerEdgeIsLonger)
{
    const long long number = Book(1, "11:00", "12:00");
    Open();
    View().ScrollTo(9 * 60);
    Answer({"Sim"});
    const QPoint edge(RectOf(number).center().x(), RectOf(number).bottom() - 1);
    Drag(edge, edge + QPoint(0, View().Measures().HeightOf(45)));
    EXPECT_EQ(Now(number), "2026-11-19 11:00 12:45 1");
}

TEST_F(Moving, ByKeysUntilEnterOrEscape)
{
    const long long number = Book(1, "11:00", "12:00");
    Open();
    View().MoveTo(Bia, 11 * 60);
    const auto all = Qt::ControlModifier | Qt::ShiftModifier;
    Keys(Qt::Key_Down, all);
    Keys(Qt::Key_Left, all);
    Keys(Qt::Key_PageDown, Qt::ShiftModifier);
    EXPECT_EQ(TextOf("lugar"),
              "Mover para Ana, 19/11/2026, das 11:15 às 12:30. Enter confirma, Esc desiste.");
    Keys(Qt::Key_Escape);
    EXPECT_EQ(Now(number), "2026-11-19 11:00 12:00 1");
    Keys(Qt::Key_Down, all);
    Answer({"Sim"});
    Keys(Qt::Key_Return);
    EXPECT_EQ(Now(number), "2026-11-19 11:15 12:15 1");
}

TEST_F(Moving, IsForgottenWhereTheAnswerIsNo)
{
    const long long number = Book(1, "11:00", "12:00");
    Open();
    View().ScrollTo(9 * 60);
    Answer({"Não"});
    const QPoint grip = RectOf(number).topLeft() + QPoint(20, 8);
    Drag(grip, grip + QPoint(0, 100));
    EXPECT_EQ(Now(number), "2026-11-19 11:00 12:00 1");
    EXPECT_EQ(RectOf(number).topLeft() + QPoint(20, 8), grip);
    EXPECT_EQ(TextOf("recado"), "");
}

TEST_F(Moving, SaysOfAPastTimeThatItIsOne)
{
    Book(1, "11:00", "12:00");
    Open();
    View().MoveTo(Bia, 11 * 60);
    for (int step = 0; step < 4; ++step)
        Keys(Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
    Answer({"Não"});
    Keys(Qt::Key_Return);
    ASSERT_EQ(boxes_.size(), 1U);
    EXPECT_NE(boxes_[0].find("Esse horário já passou."), std::string::npos);
}

TEST_F(Moving, IsPutBackWithTheReasonWhereItIsRefused)
{
    const long long number = Book(1, "11:00", "12:00");
    Stored("update funcionario set agendamentos_simultaneos = 1");
    Book(2, "11:00", "12:00");
    Open();
    View().MoveTo(Bia, 11 * 60);
    Keys(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    Answer({"Sim", "OK"});
    Keys(Qt::Key_Return);
    EXPECT_EQ(Now(number), "2026-11-19 11:00 12:00 1");
    ASSERT_EQ(boxes_.size(), 2U);
    EXPECT_NE(boxes_[1].find("Ana"), std::string::npos) << boxes_[1];
    EXPECT_EQ(View().Column(), Bia);
}

TEST_F(Moving, IsRefusedWhereAnotherDeskHasMovedItMeanwhile)
{
    const long long number = Book(1, "11:00", "12:00");
    Open();
    View().MoveTo(Bia, 11 * 60);
    Stored("update agendamento set hora_inicial = '14:00', hora_final = '15:00', versao = versao + 1");
    Keys(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    Answer({"Sim", "OK"});
    Keys(Qt::Key_Return);
    EXPECT_EQ(Now(number), "2026-11-19 14:00 15:00 1");
    EXPECT_EQ(boxes_.size(), 2U);
    EXPECT_EQ(View().Blocks().Block(0).part.from, 14 * 60) << "it is shown where it is now";
}

TEST_F(Moving, IsNotBegunWhereTheUserMayNot)
{
    const long long number = Book(1, "11:00", "12:00");
    Open();
    page_->whyNotMoved = [] { return QStringLiteral("Recepção não pode alterar agendamentos."); };
    View().MoveTo(Bia, 11 * 60);
    Keys(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    Keys(Qt::Key_Return);
    EXPECT_EQ(TextOf("recado"), "Recepção não pode alterar agendamentos.");
    EXPECT_EQ(Now(number), "2026-11-19 11:00 12:00 1");
}

class CommandsOfThePage : public HorariosTest {
protected:
    CommandsOfThePage()
    {
        const auto add = [this](const char* text, Qt::Key key, Command::Needs needs) {
            Command command;
            command.text = QString::fromUtf8(text);
            command.keys = QKeySequence(key);
            command.needs = needs;
            command.run = [this, text](const Target& target) {
                done_.push_back(std::string(text) + " " + std::to_string(target.number) + " "
                                + std::to_string(target.employee) + " " + FormatTime(target.when.time));
                return QStringLiteral("feito");
            };
            command.why = [this] { return why_; };
            commands_.push_back(command);
        };
        add("&Detalhar", Qt::Key_F4, Command::Needs::Appointment);
        add("&Novo", Qt::Key_F2, Command::Needs::Place);
    }

    std::vector<std::string> done_;
    QString why_;
};

TEST_F(CommandsOfThePage, AreDoneByTheirKeyWhereTheyMakeSense)
{
    const std::string number = std::to_string(Book(1, "10:00", "11:00"));
    Open();
    View().MoveTo(Bia, 10 * 60);
    Keys(Qt::Key_F4);
    Keys(Qt::Key_F2);
    EXPECT_EQ(TextOf("recado"), "Escolha antes um horário sem agendamento.");
    View().MoveTo(Ana, 9 * 60);
    Keys(Qt::Key_F2);
    EXPECT_EQ(TextOf("recado"), "feito");
    Keys(Qt::Key_F4);
    EXPECT_EQ(TextOf("recado"), "Escolha antes um agendamento.");
    EXPECT_EQ(done_, (std::vector<std::string>{"&Detalhar " + number + " 1 10:00", "&Novo 0 2 09:00"}));
}

TEST_F(CommandsOfThePage, TheFirstOneIsDoneByEnterAndByADoublePress)
{
    const long long number = Book(1, "10:00", "11:00");
    Open();
    View().MoveTo(Bia, 10 * 60);
    Keys(Qt::Key_Return);
    QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, PlaceOf(Ana, 9 * 60));
    const std::string told = std::to_string(number);
    EXPECT_EQ(done_, (std::vector<std::string>{"&Detalhar " + told + " 1 10:00", "&Novo 0 2 09:00"}));
}

TEST_F(CommandsOfThePage, AreRefusedWithTheReason)
{
    Book(1, "10:00", "11:00");
    Open();
    View().MoveTo(Bia, 10 * 60);
    why_ = QStringLiteral("Recepção não pode.");
    Keys(Qt::Key_F4);
    EXPECT_EQ(TextOf("recado"), "Recepção não pode.");
    EXPECT_TRUE(done_.empty());
}

TEST_F(CommandsOfThePage, StandInAMenuForWhatTheCursorIsOn)
{
    Book(1, "10:00", "11:00");
    Open();
    View().MoveTo(Bia, 10 * 60);
    std::vector<std::string> entries;
    QTimer::singleShot(0, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (const QAction* entry : menu->actions())
            entries.push_back(entry->text().toStdString());
        menu->close();
    });
    const QPoint corner(5, 5);
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, corner, View().viewport()->mapToGlobal(corner));
    QApplication::sendEvent(View().viewport(), &asked);
    EXPECT_EQ(entries, (std::vector<std::string>{"&Detalhar\tF4"}));
}

class Accessible : public HorariosTest {
protected:
    QAccessibleInterface& Tree() { return *QAccessible::queryAccessibleInterface(&View()); }
};

TEST_F(Accessible, HasAnItemForEachBlockWithAWholeSentence)
{
    Book(2, "09:00", "09:30", 2);
    Book(1, "10:00", "11:00");
    Open();
    ASSERT_EQ(Tree().childCount(), 3);
    EXPECT_EQ(Tree().child(1)->text(QAccessible::Name).toStdString(),
              "Ana, 19/11/2026, das 09:00 às 09:30: Rex, de Carla, Banho de teste. Situação: Atendido.");
    EXPECT_EQ(Tree().child(2)->text(QAccessible::Name).toStdString(),
              "Bia, 19/11/2026, das 10:00 às 11:00: Rex, de Carla, Banho de teste. Situação: Agendado.");
    for (int at = 0; at < 3; ++at) {
        EXPECT_EQ(Tree().indexOfChild(Tree().child(at)), at);
        EXPECT_EQ(Tree().child(at)->parent(), &Tree());
        EXPECT_EQ(Tree().child(at)->role(), QAccessible::ListItem);
    }
    EXPECT_EQ(Tree().child(3), nullptr);
}

TEST_F(Accessible, ToldThePlaceWhereNoBlockLies)
{
    Book(1, "10:00", "11:00");
    Open();
    View().MoveTo(Ana, 9 * 60);
    EXPECT_EQ(Tree().child(0)->text(QAccessible::Name).toStdString(), "Ana, 19/11/2026, 09:00: livre");
    EXPECT_TRUE(Tree().child(0)->state().focused);
    EXPECT_EQ(Tree().focusChild(), Tree().child(0));
    View().MoveTo(Bia, 10 * 60);
    EXPECT_EQ(Tree().focusChild(), Tree().child(1));
    EXPECT_TRUE(Tree().child(1)->state().selected);
}

TEST_F(Accessible, FindsABlockWhereItStandsOnTheScreen)
{
    const long long number = Book(1, "10:00", "11:00");
    Open();
    View().ScrollTo(9 * 60);
    const QPoint middle = View().viewport()->mapToGlobal(RectOf(number).center());
    EXPECT_EQ(Tree().childAt(middle.x(), middle.y()), Tree().child(1));
    EXPECT_TRUE(Tree().child(1)->rect().contains(middle));
    QAccessibleInterface* kept = Tree().child(1);
    Stored("delete from agendamento");
    page_->Refresh();
    EXPECT_EQ(Tree().childCount(), 1);
    EXPECT_FALSE(kept->isValid()) << "what a tool still holds is told to be gone";
}

} // namespace

} // namespace kova::timetable::test
