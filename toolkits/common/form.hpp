#pragma once

#include "agenda/contracts/widgets/form.hpp"
#include "agenda/contracts/widgets/form_design.hpp"
#include "toolkits/common/event_scope.hpp"
#include "toolkits/common/form_window.hpp"
#include "toolkits/common/widget_core.hpp"

#include <memory>
#include <string>
#include <vector>

namespace kova::toolkit {

class ToolkitModel;
struct KeyHelp;

/// Keys that act on the form as a whole; a window forwards them unless the focused widget uses them.
enum class FormKey {
    Tab,
    BackTab,
    /// In a find box its own rule; on a button, option or check box a press; on a grid a click of the
    /// current row; elsewhere the form's default button, or the next widget where there is none.
    Enter,
    /// The form's cancel button, where there is one, without a move of the focus. A form that guards what was
    /// typed into it moves the focus there first.
    Escape,
};

/// The form of every toolkit. Handlers may hide or unload the form, show others and move the focus at
/// any time: each event keeps the form and its owner alive while it runs, and a form dies only when no
/// event is on the stack.
///
/// The focus belongs to the form: showing another form raises no LostFocus. A widget that is hidden or
/// disabled leaves the form without focus; Tab then goes on from its place.
class FormModel final : public Form, public std::enable_shared_from_this<FormModel> {
public:
    struct State {
        Text caption;
        Twips left = 0;
        Twips top = 0;
        Twips width = 0;
        Twips height = 0;
        bool visible = false;
        bool enabled = true;
        bool modal = false;
        bool unloaded = false;
        bool insideContainer = false;
    };

    FormModel(ToolkitModel& toolkit, const FormDesign& design);
    ~FormModel() override;

    Text Name() const override { return design_.name; }
    Text Caption() const override;
    void Caption(const Text& value) override;
    bool Visible() const override;
    bool Enabled() const override;
    void Enabled(bool value) override;
    Twips Left() const override;
    void Left(Twips value) override;
    Twips Top() const override;
    void Top(Twips value) override;
    Twips Width() const override;
    void Width(Twips value) override;
    Twips Height() const override;
    void Height(Twips value) override;
    Twips ScaleLeft() const override;
    Twips ScaleTop() const override;
    Twips ScaleWidth() const override;
    Twips ScaleHeight() const override;
    Long Handle() const override;
    void SetParent(Long containerHandle) override;

    void Load() override;
    /// Fails with 5 on an unloaded form, and on a modal Show of a form that is shown modally already.
    /// Each Show of a hidden form raises Activate.
    void Show(ShowMode mode) override;
    void Hide() override;
    bool Unload() override;
    bool IsLoaded() const override { return loaded_ && !state_.unloaded; }
    void Refresh() override;

    std::vector<Widget*> Controls() const override;
    Widget& Control(std::string_view name, int index = -1) const override;
    Widget& Add(WidgetKind kind, std::string_view name) override;
    void PopupMenu(Menu& parent, Twips x, Twips y) override;

    void OnLoad(Handler handler) override { load_ = std::move(handler); }
    void OnActivate(Handler handler) override { activate_ = std::move(handler); }
    void OnResize(Handler handler) override { resize_ = std::move(handler); }
    void OnUnload(std::function<void(bool& cancel)> handler) override { unload_ = std::move(handler); }
    void Owner(std::weak_ptr<void> owner) override;

    // For windows, views and tools: no access of the contract.

    ToolkitModel& GetToolkit() const { return toolkit_; }
    FormWindow& Window() const { return *window_; }
    const FormDesign& Design() const { return design_; }
    const State& Current() const { return state_; }
    InnerSize Inner() const;
    /// Whether the window is to be seen: a form of which no inner area is left is off the screen, although it
    /// counts as visible and a modal Show of it goes on.
    bool IsOnScreen() const;
    /// All widgets in the order of the design, then those made at run time.
    const std::vector<std::unique_ptr<WidgetCore>>& Widgets() const { return widgets_; }
    /// Null where there is none.
    WidgetCore* Find(std::string_view name, int index = -1) const;
    /// The widget that has the focus; null where none has.
    WidgetCore* Focused() const { return focused_; }
    /// Why the user cannot act in this form, as in "frmLista is under a modal form"; "" where he can.
    std::string Refusal() const;
    /// Whether the window's close button works.
    bool MayBeClosed() const;
    /// What can be pressed here and now: the keys of the controls that take input in the order of the design,
    /// then those of the rows and of the form. Empty where only Tab would be left.
    std::vector<KeyHelp> Keys() const;

    // What the user does.

    /// The window's own close button or key. It works on a disabled form too, but not during a pause.
    void UserCloses();
    /// The window or its container got another inner size: Resize, once the form has been shown.
    void UserResizes(InnerSize inner);
    void UserMoves(Twips left, Twips top);
    /// The container has been closed or destroyed: the form in it is unloaded.
    void ContainerEnds();
    void UserPressesKey(FormKey key);
    /// A key that is not a character, such as "F4" or "Ctrl+1": presses the button, chooses the option or
    /// enters the box that has it, where the user can act on it, or shows the form's keys. A button leaves
    /// the focus where it was. False where the key means nothing here.
    bool UserPressesShortcut(std::string_view shortcut);

    // For widgets.

    /// Runs a handler with the form and its owner kept alive. Nothing happens where there is no handler,
    /// the form has been unloaded or the owner is gone. A failure of the handler goes through.
    template <class... Parameters, class... Arguments>
    void Raise(const std::function<void(Parameters...)>& handler, Arguments&&... arguments);
    /// Raises LostFocus of the widget that has the focus, then GotFocus of this one; null is none.
    /// Gives way to a move that a LostFocus handler makes.
    void MoveFocus(WidgetCore* target, Entry entry = Entry::Key);
    void FocusNext(bool forward);
    /// The user has changed what a widget holds.
    void NoteTyping() { typedSinceShown_ = true; }
    /// Runs a press by key of a widget; the focus goes back to where it was, unless a handler has moved it.
    void PressKeepingFocus(WidgetCore& pressed, const std::function<void()>& press);
    /// Takes the focus away from a widget that can no longer hold it.
    void ReviewFocus();
    /// A window or view over the shape of a user action: see WidgetCore::ByUser.
    void ByUser(const std::function<void()>& action);

private:
    friend class ToolkitModel;
    friend class WidgetCore;

    void Build();
    WidgetCore& AddWidget(const ControlDesign& design);
    void ConnectContainers();
    void AttachViews();
    void AttachView(WidgetCore& widget);
    MemberAccess AccessTo(std::string_view member) const;
    void Reading(std::string_view member) const;
    void Writing(std::string_view member, const Value& value) const;
    void Calling(std::string_view member, const Value& argument = Value()) const;
    InnerSize Frame() const;
    void MoveTo(Twips State::*member, Twips value);
    void Resize(Twips State::*member, Twips value);
    void TakeInner(InnerSize inner);
    void LoadOnce();
    void ShowNow(ShowMode mode);
    void ShowModal();
    void RaiseShown(ShowMode mode, bool appears);
    void HideNow();
    bool UnloadNow();
    bool IsKeptByHandler();
    void DropHandlers();
    /// Nobody holds the form any more. What a library has given it goes at once, as the library may, while
    /// the form may have to wait.
    void LetGo();
    void PressEnter();
    void PressEscape();
    /// The first widget of that meaning that takes input, such as the default button; null where there is
    /// none.
    WidgetCore* ButtonOf(bool (WidgetCore::*isMeant)() const) const;
    void FocusFirst();
    bool PressShortcut(std::string_view shortcut);
    WidgetCore* NextStop(bool forward) const;

    ToolkitModel& toolkit_;
    const FormDesign design_;
    State state_;
    bool loaded_ = false;
    bool shownOnce_ = false;
    bool unloading_ = false;
    bool hasOwner_ = false;
    bool typedSinceShown_ = false;
    /// The first Escape has been pressed; the next one leaves, wherever the focus stands.
    bool escapeWarned_ = false;
    std::weak_ptr<void> owner_;
    std::vector<std::unique_ptr<WidgetCore>> widgets_;
    WidgetCore* focused_ = nullptr;
    /// Where Tab goes on from while no widget has the focus.
    WidgetCore* lastFocused_ = nullptr;
    /// Counts moves of the focus, so that a move notices that a handler made another one.
    unsigned focusMoves_ = 0;
    /// Order of the shows of all forms of the toolkit.
    unsigned showNumber_ = 0;
    Handler load_;
    Handler activate_;
    Handler resize_;
    std::function<void(bool& cancel)> unload_;
    std::unique_ptr<FormWindow> window_;
};

template <class... Parameters, class... Arguments>
void FormModel::Raise(const std::function<void(Parameters...)>& handler, Arguments&&... arguments)
{
    if (!handler || state_.unloaded)
        return;
    const EventScope scope(toolkit_);
    const auto self = weak_from_this().lock();
    const auto owner = owner_.lock();
    if (!self || (hasOwner_ && !owner))
        return;
    const auto copy = handler;
    copy(std::forward<Arguments>(arguments)...);
}

} // namespace kova::toolkit
