#pragma once

#include "agenda/contracts/widgets/form_design.hpp"
#include "agenda/contracts/widgets/widget.hpp"
#include "toolkits/common/access_observer.hpp"
#include "toolkits/common/view.hpp"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace kova::toolkit {

class FormModel;
enum class FormKey;
struct KeyHelp;

/// What every widget holds.
struct WidgetState {
    Twips left = 0;
    Twips top = 0;
    Twips width = 0;
    Twips height = 0;
    bool visible = true;
    bool enabled = true;
    bool tabStop = true;
    Text toolTipText;
    Text tag;
};

/// How the focus comes to a widget.
enum class Entry {
    /// By Tab, Enter, a key of its own or code.
    Key,
    /// By a press of the mouse.
    Press,
    /// After a press elsewhere that was not meant to take it away.
    Return,
};

/// The part of a widget's model that does not depend on its kind: state, place among the others, focus,
/// the user's permission, the way to the view and to the observer.
///
/// Functions called User... are what the user does; each checks first that the user can do it, and does
/// nothing otherwise. A failure that a handler lets out of a User... function goes to
/// ToolkitModel::UnhandledFailure. Forms die when no event is on the stack, which may be the end of a
/// User... function: a toolkit whose views are still on the stack then delays that, see
/// ToolkitModel::ScheduleRelease.
class WidgetCore {
public:
    WidgetCore(FormModel& form, const ControlDesign& design);
    virtual ~WidgetCore();
    WidgetCore(const WidgetCore&) = delete;
    WidgetCore& operator=(const WidgetCore&) = delete;

    virtual WidgetKind KindOfWidget() const = 0;
    /// The contract's side of this widget.
    virtual Widget& Face() = 0;

    const ControlDesign& Design() const { return design_; }
    /// Current values; reading them is not an access of the contract.
    const WidgetState& State() const { return state_; }
    FormModel& GetForm() const { return form_; }
    /// The picture box or parent menu that holds the widget; null is the form.
    WidgetCore* Container() const { return container_; }
    void Container(WidgetCore* container) { container_ = container; }
    /// Whether others may lie in it.
    virtual bool HoldsOthers() const { return false; }
    /// "frmLista.kvcmdAlterar", "frmFichaCompleta.kvdtpDataInicial(3)".
    std::string FullName() const;
    /// The caption as it stands now; as designed where the kind's cannot be changed.
    virtual const Text& ShownCaption() const { return design_.caption; }
    /// What the widget is for, as help and assistive tools say it: the caption that code has given it, else
    /// its accessible name, its tool tip, the caption of its design.
    Text Purpose() const;

    /// Why the user may not use the widget, as the toolkit's guard says it; "" where he may.
    Text Denial() const;

    /// Whether the widget and all that holds it, the form too, are visible or enabled; one that is denied is
    /// not usable.
    bool IsOnShow() const;
    bool IsUsable() const;
    /// Why the user cannot act on the widget now, as in "frmLista.kvcmdAlterar is not visible"; "" where
    /// he can.
    std::string Refusal() const;
    bool TakesInput() const { return Refusal().empty(); }

    /// Whether widgets of this kind can have the focus at all.
    virtual bool IsFocusable() const { return false; }
    /// Whether this one could have it now.
    bool CanHoldFocus() const;
    bool HasFocus() const;

    /// The user moved the focus here.
    void UserFocuses(Entry entry = Entry::Press);

    void AttachView(std::unique_ptr<View> view) { view_ = std::move(view); }
    View* GetView() const { return view_.get(); }

    /// Enter while the widget has the focus; false leaves it to the form.
    virtual bool TakesEnter() { return false; }
    /// Tab, Enter or Escape while the widget has the focus and something of its own open; false leaves the
    /// key to the form.
    virtual bool TakesKey(FormKey) { return false; }
    /// Whether keys move a caret in it, as in boxes.
    virtual bool HasCaret() const { return false; }
    /// What "+({HOME})" does: selects from the caret back to the start.
    virtual void SelectToStart() { }
    /// The focus has just come, before any event of that: what the widget selects of itself then.
    virtual void Entered(Entry) { }
    /// The focus has moved away or here: the widget's own event, where its kind has one.
    virtual void RaiseLostFocus() { }
    virtual void RaiseGotFocus() { }
    /// Whether the user enters something here, rather than only confirming it.
    virtual bool IsField() const { return true; }
    /// Whether this is the form's default or cancel button now.
    virtual bool ConfirmsForm() const { return false; }
    virtual bool LeavesForm() const { return false; }
    /// Escape, on the cancel button: a press that moves no focus.
    virtual void UserPressesInPlace() { }
    /// The widget's own key, from anywhere in the form: enters it. What is pressed rather than entered is
    /// pressed.
    virtual void UserPressesShortcut();
    /// Another key that means something to the widget from anywhere in the form; false where it means
    /// nothing.
    virtual bool TakesFormKey(std::string_view) { return false; }
    /// Adds the keys that lead through the widget's rows, as far as they do something now.
    virtual void AddRowKeys(std::vector<KeyHelp>&) const { }
    /// Adds what TakesFormKey takes beside those, as far as it does something now.
    virtual void AddFormKeys(std::vector<KeyHelp>&) const { }
    /// Opens over a form, at a place of it, and waits for a choice: menus only.
    virtual void PopUp(FormModel&, Twips, Twips) { }
    /// Tells the form what has changed under the pointer; false where the form takes no input now, so that it
    /// has to be asked again.
    virtual bool TellPointer() { return true; }
    /// The pointer is not followed any more.
    virtual void ForgetPointer() { }
    /// Forgets all handlers; called when the form is unloaded.
    virtual void DropHandlers() { }
    /// Called once after all widgets of the form exist.
    virtual void Complete() { }

protected:
    friend class FormModel;

    /// Tells the view.
    void Tell(Aspect aspect) const
    {
        if (view_)
            view_->Update(aspect);
    }

    void MoveTo(Twips WidgetState::*member, Twips value, bool mayBeNegative);
    void ShowSelf(bool visible);
    /// The widget's own flag has changed.
    virtual void VisibilityChanged() { }
    void EnableSelf(bool enabled);
    void StopTab(bool stop);
    void WriteToolTip(const Text& text);
    void WriteTag(const Text& text) { state_.tag = text; }
    void FocusByCode();
    void ToFront();
    /// A press takes the focus first. False where the press is lost: the widget cannot be pressed any more
    /// after that, or the LostFocus of the widget before it has taken the focus back, or asked or told
    /// something in a box. Nothing of the latter holds up a press of the cancel button.
    bool FocusForPress();

    AccessObserver* Observer() const;
    MemberAccess AccessTo(std::string_view member) const;
    MemberAccess AccessToElement(std::string_view member, Long index) const;
    void Reading(std::string_view member) const
    {
        if (auto* observer = Observer())
            observer->Read(AccessTo(member));
    }
    template <class T> void Writing(std::string_view member, const T& value) const
    {
        if (auto* observer = Observer())
            observer->Write(AccessTo(member), ToValue(value));
    }
    void Calling(std::string_view member) const { Calling(member, Empty()); }
    template <class T> void Calling(std::string_view member, const T& argument) const
    {
        if (auto* observer = Observer())
            observer->Call(AccessTo(member), ToValue(argument));
    }
    template <class T> static Value ToValue(const T& value)
    {
        if constexpr (std::is_same_v<T, float>)
            return Value(static_cast<Double>(value));
        else if constexpr (std::is_same_v<T, int>)
            return Value(static_cast<Long>(value));
        else
            return Value(value);
    }

    /// Runs what a User... function does, if the user can do it: keeps the form alive meanwhile and takes
    /// a failure to the toolkit.
    void ByUser(const std::function<void()>& action);
    /// Whether the form has been unloaded, as a handler that has just run may have done.
    bool IsGone() const;

    WidgetState state_;

private:
    bool HoldsForChain(bool WidgetState::*flag) const;

    FormModel& form_;
    const ControlDesign design_;
    WidgetCore* container_ = nullptr;
    std::unique_ptr<View> view_;
};

} // namespace kova::toolkit
