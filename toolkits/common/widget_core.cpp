#include "toolkits/common/widget_core.hpp"

#include "agenda/contracts/text.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/toolkit.hpp"
#include "toolkits/common/usual_size.hpp"

namespace kova::toolkit {

WidgetCore::WidgetCore(FormModel& form, const ControlDesign& design) : form_(form), design_(design)
{
    const bool open = design.width == 0 && design.height == 0;
    const UsualSize size = open ? UsualSizeOf(design.kind) : UsualSize{design.width, design.height};
    state_ = {design.left,    design.top,     size.width,         size.height, design.visible,
              design.enabled, design.tabStop, design.toolTipText, {}};
}

WidgetCore::~WidgetCore() = default;

std::string WidgetCore::FullName() const
{
    std::string name = form_.Design().name + "." + design_.name;
    if (design_.index >= 0)
        name += "(" + std::to_string(design_.index) + ")";
    return name;
}

Text WidgetCore::Purpose() const
{
    const Text caption = Trim(ShownCaption());
    if (!caption.empty() && caption != Trim(design_.caption))
        return caption;
    if (!design_.accessibleName.empty())
        return design_.accessibleName;
    return state_.toolTipText.empty() ? caption : state_.toolTipText;
}

Text WidgetCore::Denial() const
{
    const Guard& guard = form_.GetToolkit().GetGuard();
    return guard ? guard({form_.Design().name, design_.name, ShownCaption()}) : Text();
}

bool WidgetCore::HoldsForChain(bool WidgetState::*flag) const
{
    for (const WidgetCore* widget = this; widget; widget = widget->container_) {
        if (!(widget->state_.*flag))
            return false;
    }
    return true;
}

bool WidgetCore::IsOnShow() const { return form_.IsOnScreen() && HoldsForChain(&WidgetState::visible); }

bool WidgetCore::IsUsable() const
{
    return form_.Current().enabled && HoldsForChain(&WidgetState::enabled) && Denial().empty();
}

std::string WidgetCore::Refusal() const
{
    if (auto refusal = form_.Refusal(); !refusal.empty())
        return refusal;
    if (!HoldsForChain(&WidgetState::visible))
        return FullName() + " is not visible";
    if (!HoldsForChain(&WidgetState::enabled))
        return FullName() + " is disabled";
    if (const Text denial = Denial(); !denial.empty())
        return FullName() + " is denied: " + denial;
    return {};
}

bool WidgetCore::CanHoldFocus() const { return IsFocusable() && IsOnShow() && IsUsable(); }

bool WidgetCore::HasFocus() const { return form_.Focused() == this; }

void WidgetCore::UserFocuses(Entry entry)
{
    ByUser([this, entry] { form_.MoveFocus(IsFocusable() ? this : form_.Focused(), entry); });
}

void WidgetCore::UserPressesShortcut() { form_.MoveFocus(this); }

void WidgetCore::MoveTo(Twips WidgetState::*member, Twips value, bool mayBeNegative)
{
    if (value < 0 && !mayBeNegative)
        throw Failure(FailureNumber::BadPropertyValue);
    if (state_.*member == value)
        return;
    state_.*member = value;
    Tell(Aspect::Geometry);
}

void WidgetCore::ShowSelf(bool visible)
{
    if (state_.visible == visible)
        return;
    state_.visible = visible;
    Tell(Aspect::Visible);
    VisibilityChanged();
    form_.ReviewFocus();
}

void WidgetCore::EnableSelf(bool enabled)
{
    if (state_.enabled == enabled)
        return;
    state_.enabled = enabled;
    Tell(Aspect::Enabled);
    form_.ReviewFocus();
}

void WidgetCore::StopTab(bool stop)
{
    state_.tabStop = stop;
    Tell(Aspect::TabStop);
}

void WidgetCore::WriteToolTip(const Text& text)
{
    state_.toolTipText = text;
    Tell(Aspect::ToolTip);
}

void WidgetCore::FocusByCode()
{
    if (!CanHoldFocus())
        return;
    form_.GetToolkit().CodeFocuses(*this);
    const bool stays = HasFocus();
    form_.MoveFocus(this);
    // Code that sends the user back to where he is asks him to type it anew.
    if (stays && HasFocus())
        Entered(Entry::Key);
}

void WidgetCore::ToFront() { Tell(Aspect::Order); }

bool WidgetCore::FocusForPress()
{
    const WidgetCore* const left = form_.Focused();
    const unsigned interruptions = form_.GetToolkit().Interruptions();
    form_.MoveFocus(this, Entry::Press);
    const bool isHeldUp = left && left != this
        && (form_.Focused() == left || form_.GetToolkit().Interruptions() != interruptions);
    return TakesInput() && (!isHeldUp || LeavesForm());
}

AccessObserver* WidgetCore::Observer() const { return form_.GetToolkit().Observer(); }

MemberAccess WidgetCore::AccessTo(std::string_view member) const
{
    return {form_.Design().name, design_.name, design_.index, member};
}

MemberAccess WidgetCore::AccessToElement(std::string_view member, Long index) const
{
    MemberAccess access = AccessTo(member);
    access.indexCount = 1;
    access.indexes[0] = index;
    return access;
}

void WidgetCore::ByUser(const std::function<void()>& action)
{
    form_.ByUser([this, &action] {
        if (!TakesInput())
            return;
        form_.GetToolkit().Activated(form_);
        action();
    });
}

bool WidgetCore::IsGone() const { return form_.Current().unloaded; }

} // namespace kova::toolkit
