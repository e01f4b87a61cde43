// Handlers that wait, show forms or unload theirs while a widget of the screen has a frame on the stack.

#include "tests/unit/toolkits/qt/support.hpp"
#include "toolkits/common/boxes/combo_box.hpp"
#include "toolkits/qt/boxes/calendar.hpp"
#include "toolkits/qt/boxes/combo_field.hpp"
#include "toolkits/qt/boxes/date_box.hpp"

#include <QApplication>
#include <QInputMethodEvent>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace kova::qt::test {

namespace {

class NestedLoop : public QtTest {
protected:
    void SetUp() override
    {
        ControlDesign label = Design(WidgetKind::Label, "lbl", 3300, 1200, 3000, 300);
        label.caption = "&Nome";
        label.labelOf = "kvtxt";
        form_ = Show({label, Design(WidgetKind::KVComboBox, "kvcmb", 0, 0, 3000, 510),
                      Design(WidgetKind::KVDTPicker, "kvdtp", 0, 600, 3000, 510),
                      Design(WidgetKind::KVTextBox, "kvtxt", 0, 1200, 3000, 510),
                      Design(WidgetKind::KVCommandButton, "kvcmd", 0, 1800, 3000, 510)});
        combo_ = &Bind<KVComboBox>(form_, "kvcmb");
        for (const char* row : {"Um", "Dois", "Três", "Quatro"})
            combo_->AddItem(row);
    }

    /// What a wait plate does: the form takes no input while events are taken for a while.
    void Wait(const std::function<void()>& meanwhile = {})
    {
        form_->Enabled(false);
        toolkit_.PauseBegins(1);
        if (meanwhile)
            QTimer::singleShot(0, qApp, meanwhile);
        for (int round = 0; round < 5; ++round)
            toolkit_.ProcessPendingEvents();
        toolkit_.PauseEnds();
        form_->Enabled(true);
    }

    QListWidget* OpenList()
    {
        auto* field = dynamic_cast<ComboField*>(WindowOf(*combo_));
        ClickAt(field, field->rect().center());
        return field->List();
    }
    static void ClickRow(QListWidget* list, int row)
    {
        ClickAt(list->viewport(), list->visualItemRect(list->item(row)).center());
    }

    FormRef form_;
    KVComboBox* combo_ = nullptr;
};

TEST_F(NestedLoop, MayRunInTheClickOfAComboRowChosenByMouse)
{
    int clicks = 0;
    combo_->OnClick([&] {
        ++clicks;
        Wait();
    });
    for (const int row : {1, 2, 3}) {
        const QPointer<QListWidget> list = OpenList();
        ASSERT_NE(list, nullptr);
        bool lived = false;
        combo_->OnClick([&] {
            ++clicks;
            Wait();
            lived = list != nullptr;
        });
        ClickRow(list, row);
        EXPECT_TRUE(lived) << "the list was destroyed inside its own press";
        Settle();
        EXPECT_EQ(list, nullptr) << "the list is gone afterwards";
        EXPECT_EQ(combo_->ListIndex(), row);
    }
    EXPECT_EQ(clicks, 3);
}

TEST_F(NestedLoop, MayRunInTheChangeOfADayChosenInTheCalendar)
{
    auto& date = Bind<KVDTPicker>(form_, "kvdtp");
    auto& view = dynamic_cast<DateBoxView&>(*CoreOf(date).GetView());
    date.SetFocus();
    QTest::keyClick(WindowOf(date)->window()->windowHandle(), Qt::Key_Down, Qt::AltModifier);
    const QPointer<CalendarPopup> calendar = view.Calendar();
    ASSERT_NE(calendar, nullptr);
    bool lived = false;
    date.OnChange([&] {
        Wait();
        lived = calendar != nullptr;
    });
    ClickAt(calendar, QPoint(calendar->width() / 2, calendar->height() / 2));
    EXPECT_TRUE(lived);
    Settle();
    EXPECT_EQ(calendar, nullptr);
    EXPECT_NE(date.Text(), "__/__/____");
}

TEST_F(NestedLoop, MayRunAfterTheFormOfItsButtonWasUnloaded)
{
    auto& button = Bind<KVCommandButton>(form_, "kvcmd");
    const QPointer<QWidget> window = WindowOf(button);
    bool lived = false;
    button.OnClick([&] {
        form_->Unload();
        toolkit_.PauseBegins(1);
        for (int round = 0; round < 5; ++round)
            toolkit_.ProcessPendingEvents();
        toolkit_.PauseEnds();
        lived = window != nullptr;
    });
    ClickAt(window, QPoint(10, 10));
    EXPECT_TRUE(lived) << "the button was destroyed inside its own press";
    Settle();
    EXPECT_EQ(window, nullptr);
}

TEST_F(NestedLoop, MayRunInABoxThatAHandlerOfAnOpenListShows)
{
    combo_->OnClick([&] {
        QTimer::singleShot(0, qApp, [] { QApplication::activeModalWidget()->close(); });
        toolkit_.MessageBox(MessageKind::Information, "Pronto", "Teste");
    });
    ClickRow(OpenList(), 2);
    Settle();
    EXPECT_EQ(combo_->ListIndex(), 2);
}

class KeysOfAPause : public NestedLoop {
protected:
    void SetUp() override
    {
        NestedLoop::SetUp();
        box_ = &Bind<KVTextBox>(form_, "kvtxt");
        box_->SetFocus();
    }
    void TypeNow(const QString& text)
    {
        for (const QChar character : text)
            QTest::sendKeyEvent(QTest::Click, WindowOf(*box_)->window()->windowHandle(),
                                static_cast<Qt::Key>(character.toUpper().unicode()), QString(character),
                                Qt::NoModifier);
    }
    /// A search that the user does not wait for.
    void WaitInAnEvent(const std::function<void()>& meanwhile, const std::function<void()>& after = {})
    {
        combo_->OnClick([=, this] {
            Wait(meanwhile);
            if (after)
                after();
        });
        dynamic_cast<toolkit::ComboBoxModel&>(*combo_).UserChooses(1);
    }

    KVTextBox* box_ = nullptr;
};

TEST_F(KeysOfAPause, AreDeliveredInTheirOrderWhenTheFormTakesInputAgain)
{
    WaitInAnEvent([this] { TypeNow("ana"); });
    EXPECT_EQ(box_->Text(), "");
    Settle();
    EXPECT_EQ(box_->Text(), "ana");
}

TEST_F(KeysOfAPause, PressTheButtonThatHasTheFocus)
{
    int clicks = 0;
    auto& button = Bind<KVCommandButton>(form_, "kvcmd");
    button.OnClick([&] { ++clicks; });
    button.SetFocus();
    WaitInAnEvent([&] { TypeNow(" "); });
    EXPECT_EQ(clicks, 0);
    Settle();
    EXPECT_EQ(clicks, 1) << "pressed and let go";
}

TEST_F(KeysOfAPause, MayHaveBeenComposed)
{
    WaitInAnEvent([this] {
        TypeNow("jo");
        QInputMethodEvent composing(QStringLiteral("~"), {});
        QCoreApplication::sendEvent(QApplication::focusWidget(), &composing);
        QInputMethodEvent composed;
        composed.setCommitString(QStringLiteral("ã"));
        QCoreApplication::sendEvent(QApplication::focusWidget(), &composed);
        TypeNow("o");
    });
    EXPECT_EQ(box_->Text(), "");
    Settle();
    EXPECT_EQ(box_->Text(), "joão");
}

TEST_F(KeysOfAPause, LeadToTheFieldOfTheirMnemonic)
{
    combo_->SetFocus();
    QWidget* window = WindowOf(*box_)->window();
    QApplication::setActiveWindow(window);
    WaitInAnEvent([&] {
        QTest::sendKeyEvent(QTest::Click, window->windowHandle(), Qt::Key_N, QStringLiteral("n"),
                            Qt::AltModifier);
        TypeNow("ana");
    });
    EXPECT_TRUE(CoreOf(*combo_).HasFocus());
    Settle();
    EXPECT_TRUE(CoreOf(*box_).HasFocus());
    EXPECT_EQ(box_->Text(), "ana");
}

TEST_F(KeysOfAPause, LeadToTheFieldOfTheirMnemonicAlsoBehindAnOpenList)
{
    QWidget* window = WindowOf(*box_)->window();
    QApplication::setActiveWindow(window);
    combo_->OnClick([&] {
        Wait([&] {
            QTest::sendKeyEvent(QTest::Press, window->windowHandle(), Qt::Key_Alt, QString(),
                                Qt::AltModifier);
            QTest::sendKeyEvent(QTest::Click, window->windowHandle(), Qt::Key_N, QStringLiteral("n"),
                                Qt::AltModifier);
            QTest::sendKeyEvent(QTest::Release, window->windowHandle(), Qt::Key_Alt, QString(),
                                Qt::NoModifier);
        });
    });
    combo_->SetFocus();
    QListWidget* list = OpenList();
    QTest::sendKeyEvent(QTest::Click, list->window()->windowHandle(), Qt::Key_Down, QString(),
                        Qt::NoModifier);
    QTest::sendKeyEvent(QTest::Click, list->window()->windowHandle(), Qt::Key_Return, QString(),
                        Qt::NoModifier);
    Settle();
    EXPECT_TRUE(CoreOf(*box_).HasFocus());
}

// The record is such a form: the handler of a button of the list shows it and waits for its end.
TEST_F(KeysOfAPause, AreDeliveredToAModalFormThatAHandlerShows)
{
    FormRef record = toolkit_.CreateForm(Form({Design(WidgetKind::KVComboBox, "kvcmb", 0, 0, 3000, 510),
                                               Design(WidgetKind::KVTextBox, "kvtxt", 0, 600, 3000, 510)}));
    auto& animal = Bind<KVComboBox>(record, "kvcmb");
    auto& name = Bind<KVTextBox>(record, "kvtxt");
    animal.AddItem("Rex");
    animal.OnClick([&] {
        record->Enabled(false);
        toolkit_.PauseBegins(1);
        QTimer::singleShot(0, qApp, [&] {
            QTest::sendKeyEvent(QTest::Click, WindowOf(name)->window()->windowHandle(), Qt::Key_B,
                                QStringLiteral("b"), Qt::NoModifier);
        });
        toolkit_.ProcessPendingEvents();
        toolkit_.PauseEnds();
        record->Enabled(true);
    });
    Text typed;
    auto& button = Bind<KVCommandButton>(form_, "kvcmd");
    button.OnClick([&] {
        QTimer::singleShot(0, qApp, [&] {
            name.SetFocus();
            dynamic_cast<toolkit::ComboBoxModel&>(animal).UserChooses(0);
            Settle();
            typed = name.Text();
            record->Hide();
        });
        record->Show(ShowMode::Modal);
    });
    ClickAt(WindowOf(button), QPoint(10, 10));
    EXPECT_EQ(typed, "b");
}

TEST_F(KeysOfAPause, AreDroppedWhereABoxHasComeUpMeanwhile)
{
    WaitInAnEvent([this] { TypeNow("ana"); },
                  [this] {
                      QTimer::singleShot(0, qApp, [] { QApplication::activeModalWidget()->close(); });
                      toolkit_.MessageBox(MessageKind::Information, "Nada encontrado", "Teste");
                  });
    Settle();
    EXPECT_EQ(box_->Text(), "");
}

TEST_F(KeysOfAPause, AreNoPressesOfTheMouse)
{
    int clicks = 0;
    auto& button = Bind<KVCommandButton>(form_, "kvcmd");
    button.OnClick([&] { ++clicks; });
    WaitInAnEvent([&] { ClickAt(WindowOf(button), QPoint(10, 10)); });
    Settle();
    EXPECT_EQ(clicks, 0);
}

TEST_F(KeysOfAPause, OfADisabledFormWithoutAPauseAreLost)
{
    form_->Enabled(false);
    TypeNow("ana");
    form_->Enabled(true);
    dynamic_cast<toolkit::ComboBoxModel&>(*combo_).UserChooses(1);
    Settle();
    EXPECT_EQ(box_->Text(), "");
}

class SecondPress : public QtTest {
protected:
    void SetUp() override
    {
        below_ = Show({Design(WidgetKind::KVCommandButton, "kvcmd", 0, 0, 3000, 3000)});
        auto& button = Bind<KVCommandButton>(below_, "kvcmd");
        button.OnClick([this] { ++pressed_; });
        Settle();
        place_ = WindowOf(button)->mapToGlobal(QPoint(50, 50));
    }
    /// A press and its release as the desktop delivers them: to the window that is in front then.
    void PressAt(QWidget& top, int milliseconds)
    {
        const QPointF inside = top.mapFromGlobal(place_);
        const QPointer<QWindow> window = top.windowHandle();
        qt_handleMouseEvent(window, inside, place_, Qt::LeftButton, Qt::LeftButton, QEvent::MouseButtonPress,
                            Qt::NoModifier, milliseconds);
        qt_handleMouseEvent(window, inside, place_, Qt::NoButton, Qt::LeftButton, QEvent::MouseButtonRelease,
                            Qt::NoModifier, milliseconds + 20);
    }
    QWidget& Below() { return *WindowOf(below_->Control("kvcmd"))->window(); }
    /// Over the other form, until its button has been pressed.
    void ShowAbove()
    {
        above_ = toolkit_.CreateForm(Form({Design(WidgetKind::KVCommandButton, "kvcmd", 0, 0, 9000, 9000)}));
        Bind<KVCommandButton>(above_, "kvcmd").OnClick([this] { above_->Hide(); });
        QTimer::singleShot(0, qApp, [this] {
            QWidget& top = *WindowOf(above_->Control("kvcmd"))->window();
            top.move(Below().pos());
            PressAt(top, Begin);
        });
        above_->Show(ShowMode::Modal);
    }

    static constexpr int Begin = 1'000'000;
    FormRef below_;
    FormRef above_;
    QPoint place_;
    int pressed_ = 0;
};

TEST_F(SecondPress, DoesNotFallThroughAFormThatTheFirstOneClosed)
{
    ShowAbove();
    PressAt(Below(), Begin + 150);
    EXPECT_EQ(pressed_, 0);
}

TEST_F(SecondPress, DoesNotFallThroughWhereTheHandHasMovedALittle)
{
    ShowAbove();
    place_ += QPoint(QApplication::startDragDistance(), 0);
    PressAt(Below(), Begin + 150);
    EXPECT_EQ(pressed_, 0);
}

TEST_F(SecondPress, CountsWhereItComesLater)
{
    ShowAbove();
    PressAt(Below(), Begin + 5000);
    EXPECT_EQ(pressed_, 1);
}

TEST_F(SecondPress, CountsOnceADoublePressIsOver)
{
    ShowAbove();
    PressAt(Below(), Begin + QApplication::doubleClickInterval());
    EXPECT_EQ(pressed_, 1);
}

TEST_F(SecondPress, CountsAtAnotherPlace)
{
    ShowAbove();
    place_ += QPoint(60, 60);
    PressAt(Below(), Begin + 150);
    EXPECT_EQ(pressed_, 1);
}

TEST_F(SecondPress, CountsInAFormThatStayed)
{
    PressAt(Below(), Begin);
    PressAt(Below(), Begin + 150);
    EXPECT_EQ(pressed_, 2);
}

} // namespace

} // namespace kova::qt::test
