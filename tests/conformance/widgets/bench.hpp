#pragma once

#include "agenda/contracts/platform.hpp"
#include "toolkits/common/boxes/combo_box.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/grid/grid.hpp"

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace kova::conformance {

/// What the user will do wherever a call waits for him, and what he was shown there.
struct Script {
    struct Question {
        MessageKind kind;
        Text text;
        Text title;

        friend bool operator==(const Question&, const Question&) = default;
    };

    /// Answers to the next message boxes; nothing closes the box.
    std::deque<std::optional<Reply>> replies;
    /// Entries chosen in the next pop-up menus; null chooses none.
    std::deque<Menu*> menus;
    /// Acts inside modal forms: each takes them from the front until it is closed.
    std::deque<std::function<void()>> actions;

    std::vector<Question> questions;
    /// The entries of each menu as "Um|-|(Dois)"; the ones in parentheses cannot be chosen.
    std::vector<std::string> menusShown;
    /// Failures that handlers of the user's acts let out.
    std::vector<std::int32_t> unhandled;

    std::size_t Unused() const { return replies.size() + menus.size() + actions.size(); }
};

/// A toolkit with a person in front of it. The acts are what the person does, as far as the toolkit lets
/// him: one that is refused changes nothing. What the person sees is asked for by the questions.
class Bench {
public:
    virtual ~Bench() = default;

    virtual kova::Toolkit& Kit() = 0;
    virtual Long MakeContainer(Twips width, Twips height) = 0;
    virtual void ResizeContainer(Long handle, Twips width, Twips height) = 0;
    /// The host closes the container, or destroys it.
    virtual void CloseContainer(Long handle) = 0;
    virtual void DestroyContainer(Long handle) = 0;
    /// Lets everything that waits happen.
    virtual void Settle() = 0;
    Script& TheScript() { return script_; }

    // Acts.

    /// Presses a button, check box or option button with the mouse, or with the space bar.
    virtual void Press(Widget& button) = 0;
    virtual void PressBySpace(Widget& button) = 0;
    virtual void PressFind(KVFind& box) = 0;
    virtual void PressBar(KVNavigationBar& bar, int button) = 0;
    /// An arrow key at a bar that has the focus.
    virtual void WalkBar(KVNavigationBar& bar, bool right) = 0;
    virtual void Key(Form& form, toolkit::FormKey key) = 0;
    /// A key such as "F4" or "Ctrl+1".
    virtual void Shortcut(Form& form, const std::string& key) = 0;
    virtual void CloseWindow(Form& form) = 0;
    virtual void ResizeWindow(Form& form, Twips innerWidth, Twips innerHeight) = 0;
    /// Puts the focus into a box with the mouse.
    virtual void Focus(Widget& box) = 0;
    /// Puts the focus into a box, selects all and types key by key; "" empties it.
    virtual void Type(Widget& box, const std::string& text) = 0;
    /// Types on at the caret of a box that has the focus.
    virtual void TypeOn(Widget& box, const std::string& text) = 0;
    virtual void Backspace(Widget& box) = 0;
    /// Puts the caret before the first character and presses Delete.
    virtual void DeleteFirst(Widget& box) = 0;
    /// Pastes at the end of a box that has the focus.
    virtual void PasteAtEnd(Widget& box, const std::string& text) = 0;
    virtual void Choose(KVComboBox& combo, int row) = 0;
    /// Opens the list and leaves it without choosing; answers the rows seen, none where it did not open.
    virtual std::vector<std::string> LookAtList(KVComboBox& combo) = 0;
    /// A key, or letters, at a combo that has the focus: its field, or its list where that is open.
    virtual void ComboKey(KVComboBox& combo, toolkit::ComboKey key) = 0;
    virtual void TypeLetters(KVComboBox& combo, const std::string& letters) = 0;
    /// The desk's clock goes on.
    virtual void PassTime(Double seconds) = 0;
    virtual void Pick(KVDTPicker& box, Date date) = 0;
    /// Moves the mouse there, where it stays.
    virtual void HoverAt(MSFlexGrid& grid, Twips x, Twips y) = 0;
    /// Moves the mouse from the grid to another widget, which does not cover it.
    virtual void MoveAway(MSFlexGrid& grid, Widget& other) = 0;
    virtual void ClickAt(MSFlexGrid& grid, Twips x, Twips y) = 0;
    /// Presses at one place and moves to another one with the button down.
    virtual void Drag(MSFlexGrid& grid, Twips x, Twips y, Twips toX, Twips toY) = 0;
    virtual void GridKey(MSFlexGrid& grid, toolkit::GridKey key) = 0;
    void ClickCell(MSFlexGrid& grid, Long row, Long col);
    void HoverCell(MSFlexGrid& grid, Long row, Long col);

    // What the person sees.

    virtual bool IsOnScreen(Widget& widget) = 0;
    /// Name of the widget that has the focus, with the index of a group as "opt(1)"; "" where none has.
    virtual std::string Focused(Form& form) = 0;
    /// Text of a box, combo, label or button as it is drawn.
    virtual std::string ShownText(Widget& widget) = 0;
    virtual std::string SelectedText(Widget& box) = 0;
    /// Whether a date or time box shows its text as one that cannot stand.
    virtual bool ShowsNonsense(Widget& box) = 0;
    /// The marked row of a combo's open list, "none" where none is marked, "shut" where it is not open.
    virtual std::string MarkedRow(KVComboBox& combo) = 0;
    /// The button of a bar that has the focus; 0 where none has.
    virtual int ButtonWithFocus(KVNavigationBar& bar) = 0;
    /// Whether the button of a find box shows the magnifier; else it shows the cross.
    virtual bool ShowsMagnifier(KVFind& box) = 0;
    virtual bool Offers(KVNavigationBar& bar, int button) = 0;
    virtual std::string BarText(KVNavigationBar& bar) = 0;
    /// Ground of a cell that is on show, and its text's colour.
    virtual Colour GroundOf(MSFlexGrid& grid, Long row, Long col) = 0;
    static Colour InkOf(MSFlexGrid& grid, Long row, Long col);
    static std::string PictureOf(MSFlexGrid& grid, Long row, Long col);
    static toolkit::CellLook LookOf(MSFlexGrid& grid, Long row, Long col);
    static bool IsHighlighted(MSFlexGrid& grid, Long row, Long col);

protected:
    static toolkit::WidgetCore& CoreOf(Widget& widget);
    static toolkit::FormModel& ModelOf(Form& form);
    static toolkit::GridModel& ModelOf(MSFlexGrid& grid);
    static std::string NameOfFocused(Form& form);
    struct Place {
        Twips x = 0;
        Twips y = 0;
    };
    static Place MiddleOf(MSFlexGrid& grid, Long row, Long col);
    void NoteMenu(const std::vector<toolkit::MenuModel*>& entries);

    Script script_;
};

/// A toolkit as the suites find it.
struct BenchKind {
    std::string name;
    std::unique_ptr<Bench> (*make)();
};

/// Every toolkit there is. A new one is added here and in a file of its own.
const std::vector<BenchKind>& Benches();

inline void PrintTo(const BenchKind& kind, std::ostream* out) { *out << kind.name; }

} // namespace kova::conformance
