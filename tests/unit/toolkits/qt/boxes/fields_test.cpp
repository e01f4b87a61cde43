#include "tests/unit/toolkits/qt/support.hpp"
#include "toolkits/qt/boxes/calendar.hpp"
#include "toolkits/qt/boxes/combo_field.hpp"
#include "toolkits/qt/boxes/date_box.hpp"
#include "toolkits/qt/boxes/field_frame.hpp"
#include "toolkits/qt/boxes/line_edit.hpp"
#include "toolkits/qt/grid/navigation_bar.hpp"
#include "toolkits/qt/look/flat_button.hpp"
#include "toolkits/qt/look/painting.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPaintEvent>
#include <QScreen>

namespace kova::qt::test {
namespace {

class Fields : public QtTest {
protected:
    void SetUp() override
    {
        ControlDesign locked = Design(WidgetKind::KVTextBox, "kvtxtTravado", 0, 3000, 3000, 510);
        locked.locked = true;
        locked.text = "fixo";
        ControlDesign limited = Design(WidgetKind::KVTextBox, "kvtxtNome", 0, 0, 3000, 510);
        limited.maxLength = 5;
        ControlDesign label = Design(WidgetKind::Label, "lblNome", 4000, 0, 0, 0);
        label.caption = "Nome do animal";
        label.autoSize = true;
        label.labelOf = "kvtxtNome";
        form_ =
            Show({limited, label, locked, Design(WidgetKind::KVComboBox, "kvcmbSituacao", 0, 600, 3000, 510),
                  Design(WidgetKind::KVFind, "kvfndPesquisar", 0, 1200, 3000, 510),
                  Design(WidgetKind::KVDTPicker, "kvdtpData", 0, 1800, 1605, 510),
                  Design(WidgetKind::KVTime, "kvtimHora", 0, 2400, 1000, 510),
                  Design(WidgetKind::KVNumberBox, "kvnumIdade", 3200, 2400, 1000, 510),
                  Design(WidgetKind::CheckBox, "chkPainel", 0, 3600, 1000, 300),
                  Design(WidgetKind::KVNavigationBar, "kvnbBarra", 0, 4200, 5220, 510)});
    }

    template <class Kind> Kind& Get(const char* name) { return Bind<Kind>(form_, name); }
    template <class Kind> QWidget* Editor(const char* name) { return FocusWindowOf(Get<Kind>(name)); }

    KVComboBox& FilledCombo()
    {
        auto& combo = Get<KVComboBox>("kvcmbSituacao");
        for (const char* text : {"Todas", "Agendado", "Atendido"})
            combo.AddItem(text);
        combo.ListIndex(0);
        return combo;
    }

    FormRef form_;
};

/// What an input method does with the characters that it has composed.
void Compose(QWidget* editor, const char* text)
{
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8(text));
    QApplication::sendEvent(editor, &event);
}

TEST_F(Fields, TakeComposedCharactersAsTypedOnes)
{
    auto& name = Get<KVTextBox>("kvtxtNome");
    name.SetFocus();
    QWidget* editor = Editor<KVTextBox>("kvtxtNome");
    for (const char* letter : {"J", "o", "ã", "o"})
        Compose(editor, letter);
    EXPECT_EQ(name.Text(), "João");
    Press(editor, Qt::Key_Home);
    Press(editor, Qt::Key_Right, QString(), Qt::ShiftModifier);
    Compose(editor, "Ç");
    EXPECT_EQ(name.Text(), "Çoão");
    EXPECT_EQ(dynamic_cast<QLineEdit*>(editor)->text(), QStringLiteral("Çoão"));
    Compose(editor, "éíó");
    EXPECT_EQ(name.Text(), "Çéoão") << "no more than the box takes";
}

TEST_F(Fields, TakeComposedDigitsPlaceByPlaceUnderAMask)
{
    auto& date = Get<KVDTPicker>("kvdtpData");
    date.SetFocus();
    QWidget* editor = Editor<KVDTPicker>("kvdtpData");
    for (const char* digit : {"2", "0", "1", "1"})
        Compose(editor, digit);
    EXPECT_EQ(dynamic_cast<QLineEdit*>(editor)->text(), QStringLiteral("20/11/____"));
}

TEST_F(Fields, KeepWhatIsSelectedUntilACharacterIsComposed)
{
    auto& name = Get<KVTextBox>("kvtxtNome");
    name.Text("Rex");
    name.SetFocus();
    auto* editor = dynamic_cast<QLineEdit*>(Editor<KVTextBox>("kvtxtNome"));
    editor->selectAll();
    QInputMethodEvent composing(QStringLiteral("´"), {});
    QApplication::sendEvent(editor, &composing);
    EXPECT_EQ(name.Text(), "Rex");
    EXPECT_EQ(editor->selectedText(), QStringLiteral("Rex"));
    Compose(editor, "É");
    EXPECT_EQ(name.Text(), "É");
    QApplication::sendEvent(editor, &composing);
    Compose(editor, "á");
    EXPECT_EQ(name.Text(), "Éá");
    EXPECT_EQ(editor->displayText(), QStringLiteral("Éá")) << "nothing of the composing is left";
}

TEST_F(Fields, TakeNoComposedCharactersWhereTheyAreLocked)
{
    Compose(Editor<KVTextBox>("kvtxtTravado"), "ã");
    EXPECT_EQ(Get<KVTextBox>("kvtxtTravado").Text(), "fixo");
    EXPECT_EQ(dynamic_cast<QLineEdit*>(Editor<KVTextBox>("kvtxtTravado"))->text(), QStringLiteral("fixo"));
}

TEST_F(Fields, ComboRaisesDropDownBeforeItsListAndClickForTheRowTaken)
{
    KVComboBox& combo = FilledCombo();
    Text events;
    combo.OnDropDown([&] { events += "D"; });
    combo.OnClick([&] { events += "C"; });
    combo.OnLostFocus([&] { events += "L"; });
    auto& field = dynamic_cast<ComboField&>(*WindowOf(combo));
    Press(&field, Qt::Key_F4);
    ASSERT_TRUE(field.IsListOpen());
    EXPECT_EQ(events, "D");
    EXPECT_EQ(field.List()->count(), 3);
    Press(field.List(), Qt::Key_Down);
    EXPECT_EQ(combo.ListIndex(), 0);
    EXPECT_EQ(field.List()->currentRow(), 1);
    Press(field.List(), Qt::Key_Return);
    EXPECT_FALSE(field.IsListOpen());
    EXPECT_EQ(combo.ListIndex(), 1);
    EXPECT_EQ(events, "DC");
}

TEST_F(Fields, ComboKeepsItsRowWhenTheListIsLeftByEscape)
{
    KVComboBox& combo = FilledCombo();
    auto& field = dynamic_cast<ComboField&>(*WindowOf(combo));
    Press(&field, Qt::Key_F4);
    Press(field.List(), Qt::Key_Down);
    Press(field.List(), Qt::Key_Escape);
    EXPECT_FALSE(field.IsListOpen());
    EXPECT_EQ(combo.ListIndex(), 0);
}

TEST_F(Fields, ComboShowsATextThatNoRowHoldsAndTakesNoneFromTheUser)
{
    KVComboBox& combo = FilledCombo();
    combo.Text("Texto antigo");
    auto& field = dynamic_cast<ComboField&>(*WindowOf(combo));
    EXPECT_EQ(field.ShownText(), "Texto antigo");
    combo.SetFocus();
    Type(&field, "z");
    EXPECT_EQ(combo.Text(), "Texto antigo");
}

TEST_F(Fields, FindBoxRaisesKeyDownForEachCharacterAndSearchesByEnter)
{
    auto& find = Get<KVFind>("kvfndPesquisar");
    int keys = 0;
    Long status = -1;
    find.OnKeyDown([&](Integer, Integer) { ++keys; });
    find.OnClick([&] { status = find.Status(); });
    find.SetFocus();
    Type(Editor<KVFind>("kvfndPesquisar"), "zé");
    EXPECT_EQ(keys, 2);
    EXPECT_EQ(find.Text(), "zé");
    Press(Editor<KVFind>("kvfndPesquisar"), Qt::Key_Return);
    EXPECT_EQ(status, find_status::Search);
}

TEST_F(Fields, FindBoxShowsTheCrossWhereAPressWouldClear)
{
    auto& find = Get<KVFind>("kvfndPesquisar");
    auto& frame = dynamic_cast<FieldFrame&>(*WindowOf(find));
    EXPECT_EQ(frame.EndIcon(), "lupa");
    find.Text("Maria");
    find.Status(find_status::Found);
    EXPECT_EQ(frame.EndIcon(), "limpar");
    ClickAt(&frame, QPoint(frame.width() - 10, frame.height() / 2));
    EXPECT_EQ(find.Text(), "");
    EXPECT_EQ(frame.EndIcon(), "lupa");
}

TEST_F(Fields, DateTypedToTheEndRaisesChangeOnce)
{
    auto& date = Get<KVDTPicker>("kvdtpData");
    int changes = 0;
    date.OnChange([&] { ++changes; });
    date.SetFocus();
    auto* editor = dynamic_cast<QLineEdit*>(Editor<KVDTPicker>("kvdtpData"));
    Press(editor, Qt::Key_A, QString(), Qt::ControlModifier);
    Type(editor, "1703202");
    EXPECT_EQ(changes, 0);
    Type(editor, "6");
    EXPECT_EQ(date.Text(), "17/03/2026");
    EXPECT_EQ(editor->text(), "17/03/2026");
    EXPECT_EQ(changes, 1);
}

TEST_F(Fields, CalendarStartsAtTodayAndChoosesWithoutLosingTheFocus)
{
    auto& date = Get<KVDTPicker>("kvdtpData");
    Text events;
    date.OnChange([&] { events += "C"; });
    date.OnLostFocus([&] { events += "L"; });
    date.SetFocus();
    Press(Editor<KVDTPicker>("kvdtpData"), Qt::Key_F4);
    auto* calendar = dynamic_cast<DateBoxView&>(*CoreOf(date).GetView()).Calendar();
    ASSERT_NE(calendar, nullptr);
    EXPECT_EQ(calendar->Current(), (Date{2026, 3, 18}));
    Press(calendar, Qt::Key_PageDown);
    Press(calendar, Qt::Key_Left);
    Press(calendar, Qt::Key_Return);
    EXPECT_EQ(date.Text(), "17/04/2026");
    EXPECT_EQ(events, "C");
}

// Whether the left edge of a widget was painted anew.
class EdgePainted : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const int middle = static_cast<QWidget*>(watched)->height() / 2;
        if (event->type() == QEvent::Paint)
            isPainted |= static_cast<QPaintEvent*>(event)->region().contains(QPoint(0, middle));
        return false;
    }

    bool isPainted = false;
};

TEST_F(Fields, ShowByTheirEdgeWhichOneHasTheFocus)
{
    auto& name = Get<KVTextBox>("kvtxtNome");
    auto& date = Get<KVDTPicker>("kvdtpData");
    date.SetFocus();
    Settle();
    EdgePainted edge;
    WindowOf(name)->installEventFilter(&edge);
    const QImage without = Picture(WindowOf(name));
    edge.isPainted = false;
    name.SetFocus();
    Settle();
    EXPECT_TRUE(edge.isPainted);
    EXPECT_NE(Picture(WindowOf(name)), without);
    edge.isPainted = false;
    Type(Editor<KVTextBox>("kvtxtNome"), QStringLiteral("Re"));
    Settle();
    EXPECT_FALSE(edge.isPainted) << "typing changes nothing there";
    date.SetFocus();
    Settle();
    EXPECT_TRUE(edge.isPainted);
}

// Keys that somebody else may still take.
class KeysPassedOn : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::KeyPress;
        return false;
    }

    int count = 0;
};

TEST_F(Fields, TheKeyThatOpensACalendarGoesNoFurther)
{
    auto& date = Get<KVDTPicker>("kvdtpData");
    date.SetFocus();
    KeysPassedOn passedOn;
    WindowOf(date)->parentWidget()->installEventFilter(&passedOn);
    Press(Editor<KVDTPicker>("kvdtpData"), Qt::Key_F4);
    EXPECT_EQ(passedOn.count, 0);
    EXPECT_NE(dynamic_cast<DateBoxView&>(*CoreOf(date).GetView()).Calendar(), nullptr);
}

TEST_F(Fields, CalendarIsOpenedByF4AndByAltAndDownOnly)
{
    auto& date = Get<KVDTPicker>("kvdtpData");
    date.SetFocus();
    QWidget* editor = Editor<KVDTPicker>("kvdtpData");
    const auto opens = [&](int key, Qt::KeyboardModifiers modifiers) {
        Press(editor, key, QString(), modifiers);
        CalendarPopup* calendar = dynamic_cast<DateBoxView&>(*CoreOf(date).GetView()).Calendar();
        if (calendar)
            calendar->close();
        Settle();
        return calendar != nullptr;
    };
    EXPECT_TRUE(opens(Qt::Key_F4, Qt::NoModifier));
    EXPECT_TRUE(opens(Qt::Key_Down, Qt::AltModifier));
    EXPECT_FALSE(opens(Qt::Key_Down, Qt::NoModifier));
    EXPECT_FALSE(opens(Qt::Key_Up, Qt::AltModifier));
}

TEST_F(Fields, CalendarIsOpenedOnceAndOnlyWhereItsBoxTakesADay)
{
    auto& date = Get<KVDTPicker>("kvdtpData");
    date.SetFocus();
    Press(Editor<KVDTPicker>("kvdtpData"), Qt::Key_F4);
    Press(Editor<KVDTPicker>("kvdtpData"), Qt::Key_F4);
    const auto calendars = [&] {
        int shown = 0;
        for (const QWidget* child : WindowOf(date)->findChildren<QWidget*>())
            shown += dynamic_cast<const CalendarPopup*>(child) && child->isVisible();
        return shown;
    };
    EXPECT_EQ(calendars(), 1);
    dynamic_cast<DateBoxView&>(*CoreOf(date).GetView()).Calendar()->close();
    Settle();
    const QPoint end(WindowOf(date)->width() - 10, WindowOf(date)->height() / 2);
    // The form leads the user elsewhere.
    Get<KVTextBox>("kvtxtNome").SetFocus();
    date.OnGotFocus([&] { Get<KVTextBox>("kvtxtNome").SetFocus(); });
    ClickAt(WindowOf(date), end);
    EXPECT_EQ(calendars(), 0);
    date.OnGotFocus({});
    ClickAt(WindowOf(date), end);
    EXPECT_EQ(calendars(), 1);
}

TEST_F(Fields, CalendarTellsItsKeyWhichIsAnotherWhereF4IsTaken)
{
    EXPECT_EQ(WindowOf(Get<KVDTPicker>("kvdtpData"))->accessibleDescription(),
              QStringLiteral("Abre o calendário com F4"));
    ControlDesign detail = Design(WidgetKind::KVCommandButton, "kvcmdDetalhar", 0, 600, 1500, 510);
    detail.shortcut = "F4";
    const FormRef form = Show({detail, Design(WidgetKind::KVDTPicker, "kvdtpData", 0, 0, 1605, 510)});
    EXPECT_EQ(WindowOf(form->Control("kvdtpData"))->accessibleDescription(),
              QStringLiteral("Abre o calendário com Alt+↓"));
    auto& date = Bind<KVDTPicker>(form, "kvdtpData");
    date.SetFocus();
    Press(FocusWindowOf(date), Qt::Key_F4);
    EXPECT_EQ(dynamic_cast<DateBoxView&>(*CoreOf(date).GetView()).Calendar(), nullptr);
}

TEST_F(Fields, KeysThatATextHasNoUseForAreLeftToOthers)
{
    auto& name = Get<KVTextBox>("kvtxtNome");
    name.SetFocus();
    KeysPassedOn passedOn;
    WindowOf(name)->installEventFilter(&passedOn);
    for (const int key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown})
        Press(Editor<KVTextBox>("kvtxtNome"), key);
    Press(Editor<KVTextBox>("kvtxtNome"), Qt::Key_F12, QString(), Qt::AltModifier);
    EXPECT_EQ(passedOn.count, 5);
    Press(Editor<KVTextBox>("kvtxtNome"), Qt::Key_K, QString(), Qt::ControlModifier);
    EXPECT_EQ(passedOn.count, 5) << "the editor would do what the model does not know";
}

TEST_F(Fields, KeysWithControlMoveAndSelectAndDoNothingElse)
{
    auto& name = Get<KVTextBox>("kvtxtNome");
    name.Text("a b c");
    name.SetFocus();
    auto* editor = dynamic_cast<QLineEdit*>(Editor<KVTextBox>("kvtxtNome"));
    const auto control = [editor](int key) { Press(editor, key, QString(), Qt::ControlModifier); };
    Press(editor, Qt::Key_Home);
    control(Qt::Key_Right);
    EXPECT_EQ(editor->cursorPosition(), 2);
    control(Qt::Key_Left);
    EXPECT_EQ(editor->cursorPosition(), 0);
    control(Qt::Key_A);
    EXPECT_EQ(editor->selectedText(), QStringLiteral("a b c"));
    control(Qt::Key_Insert);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("a b c"));
    control(Qt::Key_U);
    EXPECT_EQ(editor->text(), QStringLiteral("a b c"));
}

TEST_F(Fields, CalendarStaysInsideItsRange)
{
    CalendarPopup calendar(nullptr, {2026, 3, 18}, nullptr);
    calendar.Open(QRect(0, 0, 10, 10), {1900, 1, 1});
    Press(&calendar, Qt::Key_Left);
    EXPECT_EQ(calendar.Current(), (Date{1900, 1, 1}));
    calendar.Open(QRect(0, 0, 10, 10), {2024, 1, 31});
    Press(&calendar, Qt::Key_PageDown);
    EXPECT_EQ(calendar.Current(), (Date{2024, 2, 29}));
}

TEST_F(Fields, CalendarAndListStayOnTheScreenWhereverTheirFieldIs)
{
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    CalendarPopup calendar(nullptr, {2026, 3, 18}, nullptr);
    calendar.Open(QRect(room.right() - 60, 100, 60, room.height() - 200), {2026, 3, 18});
    const auto isOnScreen = [&room](const QRect& area) { return room.intersected(area) == area; };
    EXPECT_TRUE(isOnScreen(calendar.geometry())) << calendar.x() << " " << calendar.y();
    ComboField field(nullptr);
    field.setGeometry(room.right() - 60, 100, 60, room.height() - 200);
    field.show();
    field.ShowList(QStringList(12, QString(60, QLatin1Char('m'))), 0);
    const QRect list = field.List()->window()->geometry();
    EXPECT_TRUE(isOnScreen(list)) << list.x() << " " << list.y() << " " << list.width() << " "
                                  << list.height();
}

TEST_F(Fields, ListsOpenBelowAsLongAsTheyFitThere)
{
    const QRect room = RoomForPopup(QGuiApplication::primaryScreen()->availableGeometry());
    ComboField field(nullptr);
    const auto listOf = [&field](int bottom) {
        field.setGeometry(10, bottom - 29, 200, 30);
        field.show();
        field.ShowList(QStringList(4, QStringLiteral("Banho")), 0);
        const QRect list = field.List()->window()->geometry();
        field.CloseList();
        return list;
    };
    const int height = listOf(room.top() + 100).height();
    const int lowest = room.bottom() - height - 2;
    const QRect fits = listOf(lowest);
    EXPECT_EQ(fits.top(), lowest + 3);
    EXPECT_EQ(fits.bottom(), room.bottom());
    EXPECT_LT(listOf(lowest + 1).bottom(), lowest + 1 - 29) << "above the field";
}

TEST_F(Fields, ListsMarkTheirRowByMoreThanAShade)
{
    auto& combo = Get<KVComboBox>("kvcmbSituacao");
    combo.AddItem("Agendado");
    combo.AddItem("Atendido");
    combo.ListIndex(1);
    auto& field = static_cast<ComboField&>(*WindowOf(combo));
    combo.SetFocus();
    Press(&field, Qt::Key_F4);
    const QImage rows = Picture(field.List()->viewport());
    EXPECT_NE(rows.pixel(1, 14), look::Accent.rgb());
    EXPECT_EQ(rows.pixel(1, 42), look::Accent.rgb());
    Press(field.List(), Qt::Key_Escape);
}

TEST_F(Fields, TimeFillsItsMaskFromTheLeft)
{
    auto& time = Get<KVTime>("kvtimHora");
    time.SetFocus();
    Press(Editor<KVTime>("kvtimHora"), Qt::Key_A, QString(), Qt::ControlModifier);
    Type(Editor<KVTime>("kvtimHora"), "08x3");
    EXPECT_EQ(time.Text(), "08:3_");
    Press(Editor<KVTime>("kvtimHora"), Qt::Key_Backspace);
    EXPECT_EQ(time.Text(), "08:__");
}

TEST_F(Fields, NumberBoxTakesDigitsThatItsHandlerLetsThrough)
{
    auto& number = Get<KVNumberBox>("kvnumIdade");
    number.OnKeyPress([](Integer& character) { character = character == '7' ? Integer{0} : character; });
    number.SetFocus();
    Type(Editor<KVNumberBox>("kvnumIdade"), "1a72");
    EXPECT_EQ(number.Text(), "12");
}

TEST_F(Fields, TextBoxStopsAtItsLimitPastesAndUndoes)
{
    auto& text = Get<KVTextBox>("kvtxtNome");
    auto* editor = Editor<KVTextBox>("kvtxtNome");
    text.SetFocus();
    Type(editor, "ab");
    QApplication::clipboard()->setText("cdefgh");
    Press(editor, Qt::Key_V, QString(), Qt::ControlModifier);
    EXPECT_EQ(text.Text(), "abcde");
    Press(editor, Qt::Key_Z, QString(), Qt::ControlModifier);
    EXPECT_EQ(text.Text(), "ab");
}

TEST_F(Fields, TextBoxUndoesNoMoreForWhatItHasRefused)
{
    auto& text = Get<KVTextBox>("kvtxtNome");
    auto* editor = Editor<KVTextBox>("kvtxtNome");
    text.SetFocus();
    Type(editor, "abcdefgh");
    ASSERT_EQ(text.Text(), "abcde");
    for (int times = 0; times < 2; ++times)
        Press(editor, Qt::Key_Z, QString(), Qt::ControlModifier);
    EXPECT_EQ(text.Text(), "abcd");
}

TEST_F(Fields, TextBoxCountsASignOfTwoUnitsAsOne)
{
    auto& text = Get<KVTextBox>("kvtxtNome");
    auto* editor = Editor<KVTextBox>("kvtxtNome");
    text.Text("a😀");
    text.SetFocus();
    Press(editor, Qt::Key_End);
    EXPECT_EQ(dynamic_cast<QLineEdit&>(*editor).cursorPosition(), 3);
    Press(editor, Qt::Key_Backspace);
    EXPECT_EQ(text.Text(), "a");
}

TEST_F(Fields, LockedTextBoxTakesNoTyping)
{
    auto& text = Get<KVTextBox>("kvtxtTravado");
    text.SetFocus();
    Type(Editor<KVTextBox>("kvtxtTravado"), "x");
    Press(Editor<KVTextBox>("kvtxtTravado"), Qt::Key_Backspace);
    EXPECT_EQ(text.Text(), "fixo");
    EXPECT_EQ(Picture(WindowOf(text)).pixelColor(WindowOf(text)->width() - 6, 10), QColor(249, 249, 249));
}

TEST_F(Fields, CheckBoxIsToggledByTheSpaceBarAndByCode)
{
    auto& check = Get<CheckBox>("chkPainel");
    int clicks = 0;
    check.OnClick([&] { ++clicks; });
    check.SetFocus();
    Press(WindowOf(check), Qt::Key_Space, " ");
    EXPECT_EQ(check.Value(), 1);
    EXPECT_EQ(clicks, 1);
    ClickAt(WindowOf(check), QPoint(8, 8));
    EXPECT_EQ(check.Value(), 0);
    EXPECT_EQ(clicks, 2);
}

TEST_F(Fields, NavigationBarOffersWhatItsNumbersAllow)
{
    auto& bar = Get<KVNavigationBar>("kvnbBarra");
    int pressed = 0;
    bar.OnClick([&](Integer& button) { pressed = button; });
    bar.FirstRecord(16);
    bar.LastRecord(30);
    bar.RecordCount(30);
    bar.Refresh();
    auto& window = dynamic_cast<NavigationWindow&>(*WindowOf(bar));
    EXPECT_EQ(window.Numbers().text(), "16 - 30 de 30");
    EXPECT_TRUE(window.Button(1).isEnabled());
    EXPECT_FALSE(window.Button(4).isEnabled());
    EXPECT_EQ(Picture(&window.Button(1)).pixelColor(17, 0), look::Border);
    EXPECT_EQ(window.Button(2).accessibleName(), QString::fromUtf8("Página anterior"));
    bar.SetFocus();
    Settle();
    EXPECT_TRUE(window.Button(1).hasFocus());
    Press(&window.Button(1), Qt::Key_Right);
    EXPECT_TRUE(window.Button(2).hasFocus());
    Press(&window.Button(2), Qt::Key_Return);
    EXPECT_EQ(pressed, 2);
}

TEST_F(Fields, AFieldIsNamedByTheLabelInFrontOfIt)
{
    EXPECT_EQ(Editor<KVTextBox>("kvtxtNome")->accessibleName(), "Nome do animal");
    EXPECT_EQ(Editor<KVTime>("kvtimHora")->accessibleName(), "");
    auto* label = dynamic_cast<QLabel*>(WindowOf(Get<Label>("lblNome")));
    EXPECT_EQ(label->buddy(), Editor<KVTextBox>("kvtxtNome"));
}

TEST_F(Fields, LabelFillsItsGroundWhereItHasAColourOfItsOwn)
{
    ControlDesign filled = Design(WidgetKind::Label, "lblCheia", 300, 300, 1500, 600);
    filled.backColor = static_cast<Long>(Rgb(1, 2, 3));
    const FormRef form = Show({filled, Design(WidgetKind::Label, "lblVazia", 300, 1200, 1500, 600)});
    QWidget* label = WindowOf(Bind<Label>(form, "lblCheia"));
    const QImage shown = Picture(label->parentWidget());
    EXPECT_EQ(shown.pixelColor(label->geometry().center()), QColor(1, 2, 3));
    EXPECT_NE(shown.pixelColor(WindowOf(Bind<Label>(form, "lblVazia"))->geometry().center()),
              QColor(1, 2, 3));
}

TEST_F(Fields, LabelOfAutomaticSizeHoldsItsWholeText)
{
    auto& label = Get<Label>("lblNome");
    const Twips before = label.Width();
    label.Caption("Nome do animal que veio hoje");
    EXPECT_GT(label.Width(), before);
    EXPECT_GE(WindowOf(label)->width(), dynamic_cast<QLabel*>(WindowOf(label))->sizeHint().width());
}

} // namespace
} // namespace kova::qt::test
