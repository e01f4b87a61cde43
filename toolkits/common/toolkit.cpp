#include "toolkits/common/toolkit.hpp"

#include "toolkits/common/event_scope.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/report.hpp"
#include "toolkits/common/view.hpp"
#include "toolkits/common/widget_core.hpp"

#include <algorithm>
#include <utility>

namespace kova::toolkit {

namespace {

void Remove(std::vector<FormModel*>& forms, const FormModel& form) { std::erase(forms, &form); }

FormModel* LastOfName(const std::vector<FormModel*>& forms, std::string_view name)
{
    const auto found = std::find_if(forms.rbegin(), forms.rend(), [name](const FormModel* form) {
        return form->Design().name == name && !form->Current().unloaded;
    });
    return found == forms.rend() ? nullptr : *found;
}

} // namespace

EventScope::EventScope(ToolkitModel& toolkit) : toolkit_(toolkit) { toolkit_.EnterEvent(); }

EventScope::~EventScope() { toolkit_.LeaveEvent(); }

ToolkitModel::ToolkitModel(WidgetMaker maker) : maker_(maker), alive_(std::make_shared<ToolkitModel*>(this))
{
}

ToolkitModel::~ToolkitModel() = default;

std::unique_ptr<WidgetCore> ToolkitModel::MakeWidget(FormModel& form, const ControlDesign& design) const
{
    return maker_(form, design);
}

FormRef ToolkitModel::CreateForm(const FormDesign& design)
{
    auto form = std::make_unique<FormModel>(*this, design);
    form->Build();
    forms_.push_back(form.get());
    auto retire = [toolkit = std::weak_ptr<ToolkitModel*>(alive_)](FormModel* left) {
        std::unique_ptr<FormModel> last(left);
        if (const auto alive = toolkit.lock())
            (*alive)->Retire(std::move(last));
        else
            static_cast<void>(last.release());
    };
    return std::shared_ptr<FormModel>(form.release(), std::move(retire));
}

Reply ToolkitModel::MessageBox(MessageKind kind, const Text& text, const Text& title)
{
    const EventScope scope(*this);
    const Closed closed(*this);
    return AskUser(kind, text, title);
}

void ToolkitModel::TellKeys(const FormModel& form, const std::vector<KeyHelp>& keys)
{
    const EventScope scope(*this);
    const Closed closed(*this);
    ShowKeys(form, keys);
}

MenuModel* ToolkitModel::AskMenu(FormModel& form, MenuModel& menu, const std::vector<MenuModel*>& entries,
                                 Twips x, Twips y)
{
    const Closed closed(*this);
    return form.Window().PopupMenu(menu, entries, x, y);
}

ReportRef ToolkitModel::CreateReport(const ReportDesign& design)
{
    return std::make_shared<ReportModel>(*this, design);
}

void ToolkitModel::Preview(const ReportModel& report)
{
    const EventScope scope(*this);
    const Closed closed(*this);
    RunPreview(report);
}

void ToolkitModel::SendKeys(const Text& keys)
{
    if (keys != "+({HOME})")
        throw Failure(FailureNumber::InvalidArgument);
    KeysAreSent(keys);
    if (FormModel* form = ActiveForm()) {
        if (WidgetCore* focused = form->Focused())
            focused->SelectToStart();
    }
}

void ToolkitModel::SetGuard(Guard guard)
{
    guard_ = std::move(guard);
    LookAtGuard();
}

void ToolkitModel::LookAtGuard()
{
    const EventScope scope(*this);
    const auto forms = forms_;
    for (FormModel* form : forms) {
        for (const auto& widget : form->Widgets()) {
            if (View* view = widget->GetView())
                view->Update(Aspect::Enabled);
        }
        form->ReviewFocus();
    }
}

FormModel* ToolkitModel::ModalForm() const { return modal_.empty() ? nullptr : modal_.back(); }

FormModel* ToolkitModel::FindForm(std::string_view name) const
{
    FormModel* shown = LastOfName(shown_, name);
    return shown ? shown : LastOfName(forms_, name);
}

bool ToolkitModel::IsShutOut(const FormModel& form) const
{
    if (closedDepth_ > 0)
        return true;
    const FormModel* modal = ModalForm();
    return modal && modal != &form && form.showNumber_ < modal->showNumber_;
}

void ToolkitModel::LeaveEvent() noexcept
{
    // While the event still counts, so that no form dies meanwhile.
    if (eventDepth_ == idleDepths_.back() + 1 && pointerIsUntold_)
        TellPointer();
    --eventDepth_;
    if (eventDepth_ == idleDepths_.back())
        InputAwaited();
    if (eventDepth_ > 0)
        return;
    if (!retired_.empty())
        ScheduleRelease();
    EventsEnded();
}

void ToolkitModel::TellPointer()
{
    pointerIsUntold_ = false;
    const auto forms = shown_;
    for (const FormModel* form : forms) {
        for (const auto& widget : form->Widgets()) {
            if (!form->Current().unloaded && !widget->TellPointer())
                pointerIsUntold_ = true;
        }
    }
}

void ToolkitModel::ForgetPointer()
{
    for (const FormModel* form : forms_) {
        for (const auto& widget : form->Widgets())
            widget->ForgetPointer();
    }
}

void ToolkitModel::Retire(std::unique_ptr<FormModel> form) noexcept
{
    Remove(forms_, *form);
    Remove(shown_, *form);
    form->LetGo();
    retired_.push_back(std::move(form));
    if (eventDepth_ == 0)
        ScheduleRelease();
}

void ToolkitModel::ReleaseRetired()
{
    while (eventDepth_ == 0 && !retired_.empty()) {
        const auto batch = std::exchange(retired_, {});
    }
}

void ToolkitModel::Shown(FormModel& form)
{
    form.showNumber_ = ++shows_;
    Remove(shown_, form);
    shown_.push_back(&form);
}

void ToolkitModel::Activated(FormModel& form)
{
    if (ActiveForm() == &form || !form.Current().visible)
        return;
    Remove(shown_, form);
    shown_.push_back(&form);
}

void ToolkitModel::Hidden(FormModel& form) { Remove(shown_, form); }

void ToolkitModel::PushModal(FormModel& form)
{
    ++interruptions_;
    modal_.push_back(&form);
    idleDepths_.push_back(eventDepth_);
}

void ToolkitModel::PopModal(FormModel& form)
{
    Remove(modal_, form);
    idleDepths_.pop_back();
}

} // namespace kova::toolkit
