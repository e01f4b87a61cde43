#include "tests/unit/toolkits/qt/support.hpp"
#include "toolkits/qt/handles.hpp"
#include "toolkits/qt/top_window.hpp"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>

namespace kova::qt::test {
namespace {

class Forms : public QtTest {
protected:
    std::vector<ControlDesign> TwoFieldsAndButtons()
    {
        ControlDesign close = Design(WidgetKind::KVCommandButton, "kvcmdCancelar", 2000, 2000, 1500, 510);
        close.caption = "Cancelar";
        close.isCancel = true;
        ControlDesign save = Design(WidgetKind::KVCommandButton, "kvcmdSalvar", 0, 2000, 1500, 510);
        save.caption = "Salvar";
        return {Design(WidgetKind::KVTextBox, "kvtxtUm", 0, 0, 3000, 510),
                Design(WidgetKind::KVTextBox, "kvtxtDois", 0, 1000, 3000, 510), save, close};
    }

    static FormWidget* WidgetOf(const FormRef& form)
    {
        return dynamic_cast<FormWidget*>(WidgetOfHandle(form->Handle()));
    }
};

TEST_F(Forms, FillTheirContainerAndFollowItsSize)
{
    QWidget container;
    container.resize(800, 600);
    container.show();
    FormRef form = toolkit_.CreateForm(Form(TwoFieldsAndButtons()));
    int resizes = 0;
    form->OnResize([&] { ++resizes; });
    form->SetParent(HandleOf(container));
    form->Show(ShowMode::Modeless);
    EXPECT_EQ(WidgetOf(form)->geometry(), QRect(0, 0, 800, 600));
    EXPECT_EQ(resizes, 1);
    container.resize(1000, 700);
    Settle();
    EXPECT_EQ(WidgetOf(form)->size(), QSize(1000, 700));
    EXPECT_FLOAT_EQ(form->ScaleWidth(), 15000);
    EXPECT_FLOAT_EQ(form->ScaleHeight(), 10500);
    EXPECT_EQ(resizes, 2);
}

TEST_F(Forms, AcceptTheNativeHandleOfAHostsWindow)
{
    QWidget container;
    container.resize(300, 200);
    container.show();
    FormRef form = toolkit_.CreateForm(Form({}));
    form->SetParent(static_cast<Long>(container.winId()));
    form->Show(ShowMode::Modeless);
    EXPECT_EQ(WidgetOf(form)->parentWidget(), &container);
}

TEST_F(Forms, LeaveTheirContainerItsOwnEvents)
{
    class Container : public QWidget {
    public:
        int resized = 0;

    protected:
        void resizeEvent(QResizeEvent*) override { ++resized; }
    };
    Container container;
    container.resize(300, 200);
    container.show();
    FormRef form = toolkit_.CreateForm(Form({}));
    form->SetParent(HandleOf(container));
    container.resized = 0;
    container.resize(400, 300);
    EXPECT_EQ(container.resized, 1);
}

TEST_F(Forms, AreMovedByCode)
{
    FormRef form = Show({});
    form->Left(1500);
    form->Top(3000);
    EXPECT_EQ(WidgetOf(form)->pos(), QPoint(100, 200));
    form->Left(1500);
    EXPECT_EQ(WidgetOf(form)->pos(), QPoint(100, 200));
}

TEST_F(Forms, StackControlsOfAKindInTheOrderOfTheirDesign)
{
    FormRef form = Show({Design(WidgetKind::KVCommandButton, "kvcmdUm", 0, 0, 1500, 600),
                         Design(WidgetKind::KVCommandButton, "kvcmdDois", 750, 0, 1500, 600),
                         Design(WidgetKind::Label, "lblTexto", 0, 0, 2250, 600)});
    QWidget* first = WindowOf(form->Control("kvcmdUm"));
    QWidget* second = WindowOf(form->Control("kvcmdDois"));
    EXPECT_EQ(second->parentWidget()->childAt(20, 20), first);
    EXPECT_EQ(second->parentWidget()->childAt(70, 20), second);
}

TEST_F(Forms, HearOfTheLastFunctionKey)
{
    ControlDesign button = Design(WidgetKind::KVCommandButton, "kvcmd", 0, 0, 1500, 510);
    button.shortcut = "F35";
    FormRef form = Show({button});
    int pressed = 0;
    Bind<KVCommandButton>(form, "kvcmd").OnClick([&] { ++pressed; });
    Press(WindowOf(form->Control("kvcmd")), Qt::Key_F35);
    EXPECT_EQ(pressed, 1);
}

TEST_F(Forms, GiveAPanelWithoutAWindowTheirOwnHandle)
{
    FormRef form = Show({Design(WidgetKind::PictureBox, "pic", 0, 0, 3000, 900)});
    auto& panel = Bind<PictureBox>(form, "pic");
    EXPECT_NE(panel.Handle(), form->Handle());
    delete WindowOf(panel);
    EXPECT_EQ(panel.Handle(), form->Handle());
}

TEST_F(Forms, OpenOverTheWindowInFrontElseOverTheHosts)
{
    QWidget host, front;
    host.show();
    front.show();
    front.activateWindow();
    Settle();
    TopWindow top;
    top.Register(&host);
    ASSERT_EQ(QApplication::activeWindow(), &front);
    EXPECT_EQ(top.Below(nullptr), &front);
    EXPECT_EQ(top.Below(&front), &host);
}

TEST_F(Forms, FailWith5WhereThereIsNoContainer)
{
    FormRef form = toolkit_.CreateForm(Form({}));
    try {
        form->SetParent(0x7FFFFFF0);
        FAIL() << "no failure";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), 5);
    }
}

TEST_F(Forms, SurviveTheirContainer)
{
    auto container = std::make_unique<QWidget>();
    container->show();
    FormRef form = toolkit_.CreateForm(Form(TwoFieldsAndButtons()));
    form->SetParent(HandleOf(*container));
    form->Show(ShowMode::Modeless);
    container.reset();
    Bind<KVTextBox>(form, "kvtxtUm").Text("ainda aqui");
    EXPECT_EQ(Bind<KVTextBox>(form, "kvtxtUm").Text(), "ainda aqui");
    EXPECT_NE(form->Handle(), 0);
    EXPECT_TRUE(form->Unload());
}

TEST_F(Forms, PassTheFocusInDesignOrderByTabAndEnter)
{
    FormRef form = Show(TwoFieldsAndButtons());
    auto& one = Bind<KVTextBox>(form, "kvtxtUm");
    auto& two = Bind<KVTextBox>(form, "kvtxtDois");
    Text events;
    one.OnLostFocus([&] { events += "1"; });
    two.OnLostFocus([&] { events += "2"; });
    EXPECT_TRUE(FocusWindowOf(one)->hasFocus());
    Press(FocusWindowOf(one), Qt::Key_Tab);
    EXPECT_TRUE(FocusWindowOf(two)->hasFocus());
    EXPECT_EQ(events, "1");
    Press(FocusWindowOf(two), Qt::Key_Return);
    EXPECT_TRUE(WindowOf(Bind<KVCommandButton>(form, "kvcmdSalvar"))->hasFocus());
    EXPECT_EQ(events, "12");
    Press(QApplication::focusWidget(), Qt::Key_Backtab);
    EXPECT_TRUE(FocusWindowOf(two)->hasFocus());
}

TEST_F(Forms, SelectAFieldThatIsEnteredByTab)
{
    FormRef form = Show(TwoFieldsAndButtons());
    Bind<KVTextBox>(form, "kvtxtDois").Text("velho");
    Press(FocusWindowOf(Bind<KVTextBox>(form, "kvtxtUm")), Qt::Key_Tab);
    Type(QApplication::focusWidget(), "n");
    EXPECT_EQ(Bind<KVTextBox>(form, "kvtxtDois").Text(), "n");
}

TEST_F(Forms, SelectFromTheCaretToTheStartByKeys)
{
    FormRef form = Show(TwoFieldsAndButtons());
    auto& one = Bind<KVTextBox>(form, "kvtxtUm");
    one.Text("texto");
    one.SetFocus();
    toolkit_.SendKeys("+({HOME})");
    EXPECT_EQ(dynamic_cast<QLineEdit&>(*FocusWindowOf(one)).selectedText(), "texto");
}

TEST_F(Forms, LoseTheFocusToAMouseClick)
{
    FormRef form = Show(TwoFieldsAndButtons());
    int lost = 0;
    Bind<KVTextBox>(form, "kvtxtUm").OnLostFocus([&] { ++lost; });
    auto* editor = FocusWindowOf(Bind<KVTextBox>(form, "kvtxtDois"));
    editor->setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(lost, 1);
    EXPECT_TRUE(CoreOf(Bind<KVTextBox>(form, "kvtxtDois")).HasFocus());
}

TEST_F(Forms, HearOfTheFocusThatComesByTabFromAround)
{
    FormRef form = Show(TwoFieldsAndButtons());
    FocusWindowOf(Bind<KVTextBox>(form, "kvtxtDois"))->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(CoreOf(Bind<KVTextBox>(form, "kvtxtDois")).HasFocus());
}

TEST_F(Forms, GiveTheFocusToControlsWhoseWindowIsGone)
{
    FormRef form = Show({Design(WidgetKind::KVTextBox, "kvtxtUm", 0, 0, 3000, 510),
                         Design(WidgetKind::KVTextBox, "kvtxtDois", 0, 1000, 3000, 510),
                         Design(WidgetKind::KVNavigationBar, "kvnb", 0, 2000, 3000, 510)});
    for (const char* name : {"kvtxtDois", "kvnb"}) {
        Widget& control = form->Control(name);
        delete WindowOf(control);
        control.SetFocus();
        EXPECT_TRUE(CoreOf(control).HasFocus()) << name;
    }
}

TEST_F(Forms, KeepTheFocusOffAFieldThatIsHidden)
{
    FormRef form = Show(TwoFieldsAndButtons());
    int lost = 0;
    auto& one = Bind<KVTextBox>(form, "kvtxtUm");
    one.OnLostFocus([&] { ++lost; });
    one.Visible(false);
    EXPECT_EQ(lost, 1);
    EXPECT_FALSE(FocusWindowOf(one)->hasFocus());
    EXPECT_EQ(WidgetOf(form)->focusWidget(), WidgetOf(form));
    Press(WidgetOf(form), Qt::Key_Tab);
    EXPECT_TRUE(FocusWindowOf(Bind<KVTextBox>(form, "kvtxtDois"))->hasFocus());
}

TEST_F(Forms, TakeNoInputWhileDisabled)
{
    FormRef form = Show(TwoFieldsAndButtons());
    auto& one = Bind<KVTextBox>(form, "kvtxtUm");
    auto& save = Bind<KVCommandButton>(form, "kvcmdSalvar");
    int clicks = 0;
    save.OnClick([&] { ++clicks; });
    form->Enabled(false);
    Type(FocusWindowOf(one), "x");
    ClickAt(WindowOf(save), QPoint(10, 10));
    EXPECT_EQ(one.Text(), "");
    EXPECT_EQ(clicks, 0);
    form->Enabled(true);
    ClickAt(WindowOf(save), QPoint(10, 10));
    EXPECT_EQ(clicks, 1);
}

TEST_F(Forms, PressTheCancelButtonByEscape)
{
    FormRef form = Show(TwoFieldsAndButtons());
    int clicks = 0;
    Bind<KVCommandButton>(form, "kvcmdCancelar").OnClick([&] { ++clicks; });
    Press(FocusWindowOf(Bind<KVTextBox>(form, "kvtxtUm")), Qt::Key_Escape);
    EXPECT_EQ(clicks, 1);
}

TEST_F(Forms, ReturnFromAModalShowWhenHidden)
{
    FormRef form = toolkit_.CreateForm(Form(TwoFieldsAndButtons()));
    auto& save = Bind<KVCommandButton>(form, "kvcmdSalvar");
    save.OnClick([&] { form->Hide(); });
    QTimer::singleShot(0, qApp, [&] {
        EXPECT_EQ(QApplication::activeModalWidget(), WidgetOf(form));
        ClickAt(WindowOf(save), QPoint(10, 10));
    });
    form->Show(ShowMode::Modal);
    EXPECT_FALSE(form->Visible());
    EXPECT_TRUE(form->IsLoaded());
}

TEST_F(Forms, ReturnFromAModalShowWhenTheUserClosesTheWindow)
{
    FormRef form = toolkit_.CreateForm(Form({}));
    QTimer::singleShot(0, qApp, [&] { WidgetOf(form)->close(); });
    form->Show(ShowMode::Modal);
    EXPECT_FALSE(form->IsLoaded());
}

TEST_F(Forms, MayBeUnloadedByAHandlerOfTheirOwnButton)
{
    FormRef form = Show(TwoFieldsAndButtons());
    auto& save = Bind<KVCommandButton>(form, "kvcmdSalvar");
    Text seen;
    save.OnClick([&] {
        form->Unload();
        form.reset();
        seen = "depois";
    });
    ClickAt(WindowOf(save), QPoint(10, 10));
    Settle();
    EXPECT_EQ(seen, "depois");
    EXPECT_EQ(toolkit_.ActiveForm(), nullptr);
}

TEST_F(Forms, MayBeUnloadedByAHandlerOfAKey)
{
    FormRef form = Show({Design(WidgetKind::KVFind, "kvfnd", 0, 0, 3000, 510)});
    auto& find = Bind<KVFind>(form, "kvfnd");
    find.OnKeyDown([&](Integer, Integer) {
        form->Unload();
        form.reset();
    });
    Type(FocusWindowOf(find), "abc");
    Settle();
    EXPECT_EQ(toolkit_.ActiveForm(), nullptr);
}

TEST_F(Forms, ShowAPopUpMenuAndRunTheEntryChosen)
{
    ControlDesign parent = Design(WidgetKind::Menu, "mnuPai", 0, 0, 0, 0);
    ControlDesign first = Design(WidgetKind::Menu, "mnuUm", 0, 0, 0, 0);
    first.container = "mnuPai";
    first.caption = "Um";
    ControlDesign second = first;
    second.name = "mnuDois";
    second.caption = "Dois";
    FormRef form = Show({parent, first, second});
    Text events;
    Bind<Menu>(form, "mnuDois").OnClick([&] { events += "2"; });
    QTimer::singleShot(0, qApp, [] {
        auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        Press(menu, Qt::Key_Down);
        Press(menu, Qt::Key_Down);
        Press(menu, Qt::Key_Return);
    });
    form->PopupMenu(Bind<Menu>(form, "mnuPai"), 300, 300);
    EXPECT_EQ(events, "2");
}

TEST_F(Forms, RoundTheCornersOfAPanelAndIgnoreUnknownHandles)
{
    FormRef form = Show({Design(WidgetKind::PictureBox, "picMensagem", 0, 0, 3000, 900)});
    auto& panel = Bind<PictureBox>(form, "picMensagem");
    toolkit_.SetRoundRectRegion(panel.Handle(), 30, 30);
    EXPECT_FALSE(WindowOf(panel)->mask().contains(QPoint(0, 0)));
    EXPECT_TRUE(WindowOf(panel)->mask().contains(QPoint(100, 30)));
    toolkit_.SetRoundRectRegion(0x7FFFFFF0, 30, 30);
    toolkit_.SetRoundRectRegion(0, 30, 30);
}

TEST_F(Forms, ProcessPendingEventsRunsWhatWaits)
{
    bool ran = false;
    QTimer::singleShot(0, qApp, [&] { ran = true; });
    toolkit_.ProcessPendingEvents();
    EXPECT_TRUE(ran);
    toolkit_.ProcessPendingEvents();
}

TEST_F(Forms, ProcessPendingEventsWaitsInAPauseWithNothingToDoOnly)
{
    int waits = 0;
    const QObject listener;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &listener,
                     [&] { ++waits; });
    Settle();
    toolkit_.ProcessPendingEvents();
    EXPECT_EQ(waits, 0);
    toolkit_.PauseBegins(1);
    QTimer::singleShot(0, qApp, [] {});
    toolkit_.ProcessPendingEvents();
    EXPECT_EQ(waits, 0);
    Settle();
    // What comes from the system meanwhile is something to do, too.
    constexpr int MostCalls = 100;
    for (int call = 0; waits == 0 && call < MostCalls; ++call)
        toolkit_.ProcessPendingEvents();
    EXPECT_GT(waits, 0);
    toolkit_.PauseEnds();
}

} // namespace
} // namespace kova::qt::test
