#include "tests/conformance/widgets/qt/qt_bench.hpp"

#include "tests/conformance/widgets/qt/bench_toolkit.hpp"
#include "tests/conformance/widgets/qt/input.hpp"
#include "tests/support/qt_application.hpp"
#include "toolkits/common/menu.hpp"
#include "toolkits/qt/boxes/calendar.hpp"
#include "toolkits/qt/boxes/combo_field.hpp"
#include "toolkits/qt/boxes/date_box.hpp"
#include "toolkits/qt/boxes/field_frame.hpp"
#include "toolkits/qt/boxes/line_edit.hpp"
#include "toolkits/qt/grid/grid_canvas.hpp"
#include "toolkits/qt/grid/navigation_bar.hpp"
#include "toolkits/qt/handles.hpp"
#include "toolkits/qt/look/flat_button.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QListWidget>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>

#include <cmath>
#include <map>

namespace kova::conformance {

namespace {

using toolkit::FormKey;

/// The pixel that holds the place.
QPoint PixelOf(Twips x, Twips y)
{
    const auto pixel = [](Twips place) { return static_cast<int>(std::floor(place / qt::TwipsOfPixel)); };
    return QPoint(pixel(x), pixel(y));
}

class QtBench final : public Bench {
public:
    QtBench() : toolkit_(clock_, script_) { }

    kova::Toolkit& Kit() override { return toolkit_; }
    Long MakeContainer(Twips width, Twips height) override;
    void ResizeContainer(Long handle, Twips width, Twips height) override;
    void CloseContainer(Long handle) override { containers_.at(handle)->close(); }
    void DestroyContainer(Long handle) override { containers_.erase(handle); }
    void Settle() override;

    void Press(Widget& button) override { ClickOn(WindowOf(button)); }
    void PressBySpace(Widget& button) override
    {
        button.SetFocus();
        if (Reached(button))
            KeyOn(WindowOf(button), Qt::Key_Space);
    }
    void PressFind(KVFind& box) override;
    void PressBar(KVNavigationBar& bar, int button) override { ClickOn(&BarOf(bar).Button(button)); }
    void WalkBar(KVNavigationBar& bar, bool right) override
    {
        KeyOn(WindowOf(bar), right ? Qt::Key_Right : Qt::Key_Left);
    }
    void Key(Form& form, FormKey key) override;
    void Shortcut(Form& form, const std::string& key) override;
    void CloseWindow(Form& form) override { WindowOf(form)->close(); }
    void ResizeWindow(Form& form, Twips innerWidth, Twips innerHeight) override
    {
        WindowOf(form)->resize(qt::Pixels(innerWidth), qt::Pixels(innerHeight));
    }
    void Focus(Widget& box) override { ClickOn(FocusWindowOf(box)); }

    void Type(Widget& box, const std::string& text) override;
    void TypeOn(Widget& box, const std::string& text) override
    {
        if (Reached(box))
            TypeOnKeys(WindowOf(box), qt::FromText(text));
    }
    void Backspace(Widget& box) override { KeyInside(box, Qt::Key_Backspace); }
    void DeleteFirst(Widget& box) override
    {
        KeyInside(box, Qt::Key_Home);
        KeyInside(box, Qt::Key_Delete);
    }
    void PasteAtEnd(Widget& box, const std::string& text) override;

    void Choose(KVComboBox& combo, int row) override;
    std::vector<std::string> LookAtList(KVComboBox& combo) override;
    void ComboKey(KVComboBox& combo, toolkit::ComboKey key) override;
    void TypeLetters(KVComboBox& combo, const std::string& letters) override;
    void PassTime(Double seconds) override { clock_.Advance(seconds); }
    void Pick(KVDTPicker& box, Date date) override;

    void HoverAt(MSFlexGrid& grid, Twips x, Twips y) override { MoveOver(WindowOf(grid), PixelOf(x, y)); }
    void MoveAway(MSFlexGrid&, Widget& other) override
    {
        MoveOver(WindowOf(other), WindowOf(other)->rect().center());
    }
    void ClickAt(MSFlexGrid& grid, Twips x, Twips y) override { ClickOn(WindowOf(grid), PixelOf(x, y)); }
    void Drag(MSFlexGrid& grid, Twips x, Twips y, Twips toX, Twips toY) override
    {
        DragOver(WindowOf(grid), PixelOf(x, y), PixelOf(toX, toY));
    }
    void GridKey(MSFlexGrid& grid, toolkit::GridKey key) override;

    bool IsOnScreen(Widget& widget) override { return WindowOf(widget)->isVisible(); }
    std::string Focused(Form& form) override;
    std::string ShownText(Widget& widget) override;
    std::string SelectedText(Widget& box) override { return qt::ToText(EditorOf(box).selectedText()); }
    bool ShowsNonsense(Widget& box) override
    {
        return EditorOf(box).palette().color(QPalette::Text) == qt::look::Refusal;
    }
    std::string MarkedRow(KVComboBox& combo) override;
    int ButtonWithFocus(KVNavigationBar& bar) override;
    bool ShowsMagnifier(KVFind& box) override { return FrameOf(box).EndIcon() == "lupa"; }
    bool Offers(KVNavigationBar& bar, int button) override { return BarOf(bar).Button(button).isEnabled(); }
    std::string BarText(KVNavigationBar& bar) override { return qt::ToText(BarOf(bar).Numbers().text()); }
    Colour GroundOf(MSFlexGrid& grid, Long row, Long col) override;

private:
    static qt::FieldFrame& FrameOf(Widget& box) { return dynamic_cast<qt::FieldFrame&>(*WindowOf(box)); }
    static QLineEdit& EditorOf(Widget& box) { return FrameOf(box).Editor(); }
    static qt::ComboField& FieldOf(Widget& box) { return dynamic_cast<qt::ComboField&>(*WindowOf(box)); }
    static QListWidget* OpenedList(KVComboBox& combo);
    static qt::NavigationWindow& BarOf(Widget& bar)
    {
        return dynamic_cast<qt::NavigationWindow&>(*WindowOf(bar));
    }
    /// Whether keys go to that widget now.
    static bool Reached(Widget& widget)
    {
        const QWidget* window = WindowOf(widget);
        return window && window->window()->focusWidget() == FocusWindowOf(widget);
    }
    static void KeyInside(Widget& box, Qt::Key key)
    {
        if (Reached(box))
            KeyOn(WindowOf(box), key);
    }

    BenchClock clock_;
    BenchToolkit toolkit_;
    std::map<Long, std::unique_ptr<QWidget>> containers_;
};

Long QtBench::MakeContainer(Twips width, Twips height)
{
    auto container = std::make_unique<QWidget>();
    container->resize(qt::Pixels(width), qt::Pixels(height));
    container->show();
    container->activateWindow();
    const Long handle = qt::HandleOf(*container);
    containers_[handle] = std::move(container);
    return handle;
}

void QtBench::ResizeContainer(Long handle, Twips width, Twips height)
{
    containers_.at(handle)->resize(qt::Pixels(width), qt::Pixels(height));
    Settle();
}

void QtBench::Settle()
{
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void QtBench::PressFind(KVFind& box)
{
    const QWidget& frame = FrameOf(box);
    ClickOn(&FrameOf(box), QPoint(frame.width() - 10, frame.height() / 2));
}

void QtBench::Key(Form& form, FormKey key)
{
    static const std::map<FormKey, Qt::Key> keys = {{FormKey::Tab, Qt::Key_Tab},
                                                    {FormKey::BackTab, Qt::Key_Backtab},
                                                    {FormKey::Enter, Qt::Key_Return},
                                                    {FormKey::Escape, Qt::Key_Escape}};
    KeyOn(WindowOf(form), keys.at(key),
          key == FormKey::BackTab ? Qt::ShiftModifier : Qt::KeyboardModifiers());
}

void QtBench::Shortcut(Form& form, const std::string& key)
{
    const auto combination = QKeySequence::fromString(qt::FromText(key), QKeySequence::PortableText)[0];
    KeyOn(WindowOf(form), combination.key(), combination.keyboardModifiers());
}

void QtBench::Type(Widget& box, const std::string& text)
{
    Focus(box);
    if (!Reached(box))
        return;
    KeyOn(WindowOf(box), Qt::Key_A, Qt::ControlModifier);
    if (text.empty())
        Backspace(box);
    TypeOn(box, text);
}

void QtBench::PasteAtEnd(Widget& box, const std::string& text)
{
    KeyInside(box, Qt::Key_End);
    QApplication::clipboard()->setText(qt::FromText(text));
    if (Reached(box))
        KeyOn(WindowOf(box), Qt::Key_V, Qt::ControlModifier);
}

// Null where it did not open; the form may be gone then.
QListWidget* QtBench::OpenedList(KVComboBox& combo)
{
    const QPointer<qt::ComboField> field = &FieldOf(combo);
    ClickOn(field);
    return field ? field->List() : nullptr;
}

void QtBench::Choose(KVComboBox& combo, int row)
{
    QListWidget* list = OpenedList(combo);
    if (!list)
        return;
    if (row < list->count())
        ClickOn(list->viewport(), list->visualItemRect(list->item(row)).center());
    else
        KeyOn(list, Qt::Key_Escape);
}

std::vector<std::string> QtBench::LookAtList(KVComboBox& combo)
{
    QListWidget* list = OpenedList(combo);
    std::vector<std::string> rows;
    if (!list)
        return rows;
    for (int row = 0; row < list->count(); ++row)
        rows.push_back(qt::ToText(list->item(row)->text()));
    KeyOn(list, Qt::Key_Escape);
    return rows;
}

void QtBench::ComboKey(KVComboBox& combo, toolkit::ComboKey key)
{
    using toolkit::ComboKey;
    static const std::map<ComboKey, Qt::Key> keys = {
        {ComboKey::Open, Qt::Key_F4},           {ComboKey::Up, Qt::Key_Up},
        {ComboKey::Down, Qt::Key_Down},         {ComboKey::PageUp, Qt::Key_PageUp},
        {ComboKey::PageDown, Qt::Key_PageDown}, {ComboKey::Home, Qt::Key_Home},
        {ComboKey::End, Qt::Key_End},           {ComboKey::Take, Qt::Key_Return},
        {ComboKey::Leave, Qt::Key_Escape}};
    if (QListWidget* list = FieldOf(combo).List())
        KeyOn(list, keys.at(key));
    else
        KeyInside(combo, keys.at(key));
}

void QtBench::TypeLetters(KVComboBox& combo, const std::string& letters)
{
    for (const QChar letter : qt::FromText(letters)) {
        if (QListWidget* list = FieldOf(combo).List())
            TypeOnKeys(list, letter);
        else if (Reached(combo))
            TypeOnKeys(WindowOf(combo), letter);
    }
}

std::string QtBench::MarkedRow(KVComboBox& combo)
{
    const QListWidget* list = FieldOf(combo).List();
    if (!list)
        return "shut";
    return list->currentRow() < 0 ? "none" : std::to_string(list->currentRow());
}

int QtBench::ButtonWithFocus(KVNavigationBar& bar)
{
    for (const int button : {1, 2, 3, 4}) {
        if (BarOf(bar).window()->focusWidget() == &BarOf(bar).Button(button))
            return button;
    }
    return 0;
}

void QtBench::Pick(KVDTPicker& box, Date date)
{
    Focus(box);
    KeyInside(box, Qt::Key_F4);
    auto& view = dynamic_cast<qt::DateBoxView&>(*CoreOf(box).GetView());
    qt::CalendarPopup* calendar = view.Calendar();
    if (!calendar)
        return;
    const auto monthOf = [](Date day) { return day.year * 12 + day.month; };
    while (monthOf(calendar->Current()) != monthOf(date))
        KeyOn(calendar, monthOf(calendar->Current()) < monthOf(date) ? Qt::Key_PageDown : Qt::Key_PageUp);
    while (calendar->Current() != date)
        KeyOn(calendar, calendar->Current() < date ? Qt::Key_Right : Qt::Key_Left);
    KeyOn(calendar, Qt::Key_Return);
}

void QtBench::GridKey(MSFlexGrid& grid, toolkit::GridKey key)
{
    using toolkit::GridKey;
    static const std::map<toolkit::GridKey, Qt::Key> keys = {
        {GridKey::Up, Qt::Key_Up},         {GridKey::Down, Qt::Key_Down},
        {GridKey::PageUp, Qt::Key_PageUp}, {GridKey::PageDown, Qt::Key_PageDown},
        {GridKey::Home, Qt::Key_Home},     {GridKey::End, Qt::Key_End}};
    grid.SetFocus();
    KeyInside(grid, keys.at(key));
}

// The screen's own focus has to stand where the model says.
std::string QtBench::Focused(Form& form)
{
    const toolkit::WidgetCore* focused = ModelOf(form).Focused();
    const QWidget* on = WindowOf(form)->window()->focusWidget();
    if (focused) {
        const auto& view = dynamic_cast<qt::WidgetView&>(*focused->GetView());
        EXPECT_TRUE(on == view.FocusWindow() || view.Window()->isAncestorOf(on))
            << focused->FullName() << " has the focus, on the screen "
            << (on ? on->objectName().toStdString() : "nothing");
    }
    return NameOfFocused(form);
}

std::string QtBench::ShownText(Widget& widget)
{
    QWidget* window = WindowOf(widget);
    if (const auto* combo = dynamic_cast<qt::ComboField*>(window))
        return qt::ToText(combo->ShownText());
    if (const auto* label = dynamic_cast<QLabel*>(window))
        return qt::ToText(label->text());
    if (const auto* button = dynamic_cast<QAbstractButton*>(window))
        return qt::ToText(button->text());
    return qt::ToText(EditorOf(widget).text());
}

// A pixel beside the text and the lines.
Colour QtBench::GroundOf(MSFlexGrid& grid, Long row, Long col)
{
    auto& canvas = dynamic_cast<qt::GridCanvas&>(*WindowOf(grid));
    QImage image(canvas.size(), QImage::Format_RGB32);
    canvas.render(&image);
    const QColor ground = image.pixelColor(canvas.CellArea(row, col).topLeft() + QPoint(4, 2));
    return Rgb(ground.red(), ground.green(), ground.blue());
}

} // namespace

std::unique_ptr<Bench> MakeQtBench()
{
    test::NeedApplication();
    return std::make_unique<QtBench>();
}

} // namespace kova::conformance
