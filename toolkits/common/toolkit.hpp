#pragma once

#include "agenda/contracts/platform.hpp"
#include "toolkits/common/guard.hpp"
#include "toolkits/common/report_owner.hpp"

#include <memory>
#include <string_view>
#include <vector>

namespace kova::toolkit {

class FormModel;
class FormWindow;
class MenuModel;
class TextMeasure;
class View;
class WidgetCore;
struct KeyHelp;

/// Makes the model of a designed control: who gives it knows all kinds.
using WidgetMaker = std::unique_ptr<WidgetCore> (*)(FormModel& form, const ControlDesign& design);

/// The part of a toolkit that does not depend on the screen. A screen toolkit derives from it, gives
/// windows, views and measures, and runs its event loop. It must outlive its forms.
class ToolkitModel : public kova::Toolkit, public ReportOwner {
public:
    explicit ToolkitModel(WidgetMaker maker);
    ~ToolkitModel() override;
    ToolkitModel(const ToolkitModel&) = delete;
    ToolkitModel& operator=(const ToolkitModel&) = delete;

    FormRef CreateForm(const FormDesign& design) final;
    ReportRef CreateReport(const ReportDesign& design) final;
    /// Asks through AskUser; no form takes input meanwhile.
    Reply MessageBox(MessageKind kind, const Text& text, const Text& title) final;
    void SendKeys(const Text& keys) final;

    /// May be null. It must stay valid until it is replaced.
    AccessObserver* Observer() const override { return observer_; }
    void Observer(AccessObserver* observer) { observer_ = observer; }

    /// Who says which controls the user may use; without one he may use all. Of the controls that are there
    /// it is asked at once, and again whenever something of one changes.
    void SetGuard(Guard guard);
    const Guard& GetGuard() const { return guard_; }
    /// What the guard would answer has changed: of somebody else, or of another row.
    void LookAtGuard();
    /// The same where there is one: the user has chosen something that it may go by.
    void AskGuardAgain()
    {
        if (guard_)
            LookAtGuard();
    }

    /// The innermost modal form; null where none is shown.
    FormModel* ModalForm() const;
    /// The visible form that was shown or used last; null where there is none.
    FormModel* ActiveForm() const { return shown_.empty() ? nullptr : shown_.back(); }
    /// Visible forms; the one shown or used last comes last.
    const std::vector<FormModel*>& ShownForms() const { return shown_; }
    /// The form of that name that was shown or used last; where none is visible, the one made last. Null
    /// where there is none.
    FormModel* FindForm(std::string_view name) const;
    /// Whether a modal form that was shown later, a message box, a pop-up menu or a preview keeps the user
    /// out.
    bool IsShutOut(const FormModel& form) const;
    /// Whether a message box, a pop-up menu or the preview of a report is open.
    bool IsAsking() const { return closedDepth_ > 0; }
    /// Whether a loop that lets time pass is running.
    bool IsPausing() const { return pauses_ > 0; }
    void PauseBegins(Double) override { ++pauses_; }
    void PauseEnds() override { --pauses_; }
    /// Whether an event is on the stack.
    bool IsInsideEvent() const { return eventDepth_ > 0; }
    /// Counts what has come between the user and a form: boxes, menus, previews and modal forms.
    unsigned Interruptions() const { return interruptions_; }

    /// What lies under the pointer has changed: its form is told when the outermost event ends, or at the end
    /// of a later one where it takes no input then.
    void PointerIsUntold() { pointerIsUntold_ = true; }
    /// The pointer only passed by: what changes where it was is told to nobody.
    void ForgetPointer();

    // What a screen toolkit gives.

    virtual std::unique_ptr<FormWindow> MakeWindow(FormModel& form) = 0;
    /// The view of a widget; null where the widget is not drawn by one. Containers are asked for before
    /// what they hold.
    virtual std::unique_ptr<View> MakeView(WidgetCore& widget) = 0;
    virtual const TextMeasure& Measure() const = 0;
    /// The desk's seconds since midnight, with their fraction: what tells keys of one word apart.
    virtual Double Seconds() const = 0;
    /// The handle of a panel's window, never 0.
    virtual Long HandleOf(const WidgetCore& widget) = 0;
    /// A failure came out of a handler that the user had started: the program goes on.
    virtual void UnhandledFailure(const Failure& failure) = 0;

    // What forms do, for a log. Each comes before the act takes effect.

    virtual void FormShows(const FormModel&, ShowMode) { }
    virtual void FormHides(const FormModel&) { }
    virtual void FormUnloads(const FormModel&) { }
    virtual void FormRepaints(const FormModel&) { }
    /// Code moves the focus to a widget that can take it.
    virtual void CodeFocuses(const WidgetCore&) { }
    virtual void FormPopsUp(const FormModel&, const MenuModel&, Twips, Twips) { }
    virtual void KeysAreSent(const Text&) { }

    /// Shows the keys of a form and waits until the user has read them; no form takes input meanwhile.
    void TellKeys(const FormModel& form, const std::vector<KeyHelp>& keys);

    /// Shows the entries of a menu over a form, at a place of it, and waits; null where the user chose none.
    /// No form takes input meanwhile.
    MenuModel* AskMenu(FormModel& form, MenuModel& menu, const std::vector<MenuModel*>& entries, Twips x,
                       Twips y);

    /// Shows a report and waits until the user has closed it; no form takes input meanwhile.
    void Preview(const ReportModel& report) override;

protected:
    virtual void ShowKeys(const FormModel& form, const std::vector<KeyHelp>& keys) = 0;
    /// Lays a report out, shows it and returns when the user has closed it.
    virtual void RunPreview(const ReportModel& report) = 0;
    /// Shows a message box and waits for the answer; Question boxes answer Yes or No, others Ok.
    virtual Reply AskUser(MessageKind kind, const Text& text, const Text& title) = 0;
    /// Forms wait for their end and no event is on the stack. Calls ReleaseRetired at once; a toolkit
    /// whose views may still be on the stack then does it from its event loop instead.
    virtual void ScheduleRelease() { ReleaseRetired(); }
    /// The outermost event has ended.
    virtual void EventsEnded() { }
    /// The innermost modal form, or where there is none any form, handles no event any more: the user's next
    /// key is for it. The event that shows a modal form is still on the stack then.
    virtual void InputAwaited() { }
    /// Destroys the forms that nobody holds any more; does nothing while an event is on the stack. A
    /// toolkit calls it in its destructor, as long as windows and views can still be destroyed.
    void ReleaseRetired();

private:
    friend class EventScope;
    friend class WidgetCore;
    friend class FormModel;

    /// While a message box, a menu or a preview is open.
    class Closed {
    public:
        explicit Closed(ToolkitModel& toolkit) : toolkit_(toolkit)
        {
            ++toolkit_.closedDepth_;
            ++toolkit_.interruptions_;
        }
        ~Closed() { --toolkit_.closedDepth_; }
        Closed(const Closed&) = delete;
        Closed& operator=(const Closed&) = delete;

    private:
        ToolkitModel& toolkit_;
    };

    std::unique_ptr<WidgetCore> MakeWidget(FormModel& form, const ControlDesign& design) const;
    void EnterEvent() { ++eventDepth_; }
    void LeaveEvent() noexcept;
    void TellPointer();
    void Retire(std::unique_ptr<FormModel> form) noexcept;
    void Shown(FormModel& form);
    void Activated(FormModel& form);
    void Hidden(FormModel& form);
    void PushModal(FormModel& form);
    void PopModal(FormModel& form);

    const WidgetMaker maker_;
    AccessObserver* observer_ = nullptr;
    Guard guard_;
    int eventDepth_ = 0;
    /// How many events were on the stack when each of the modal forms was shown.
    std::vector<int> idleDepths_{0};
    int closedDepth_ = 0;
    int pauses_ = 0;
    unsigned interruptions_ = 0;
    unsigned shows_ = 0;
    bool pointerIsUntold_ = false;
    std::vector<FormModel*> forms_;
    std::vector<FormModel*> shown_;
    std::vector<FormModel*> modal_;
    std::vector<std::unique_ptr<FormModel>> retired_;
    /// Expires with the toolkit. A form that outlives it all the same is never destroyed, as its window
    /// and views could not be.
    std::shared_ptr<ToolkitModel*> alive_;
};

} // namespace kova::toolkit
