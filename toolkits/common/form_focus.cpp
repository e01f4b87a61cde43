// The focus: who has it, who gets it next, and the keys that move it or end the form.

#include "toolkits/common/form.hpp"

#include <algorithm>

namespace kova::toolkit {

void FormModel::MoveFocus(WidgetCore* target, Entry entry)
{
    if (target == focused_ || state_.unloaded)
        return;
    const EventScope scope(toolkit_);
    const auto self = weak_from_this().lock();
    const unsigned move = ++focusMoves_;
    escapeWarned_ = false;
    if (WidgetCore* former = focused_) {
        lastFocused_ = former;
        focused_ = nullptr;
        former->RaiseLostFocus();
    }
    const bool stillWanted = target && move == focusMoves_ && !state_.unloaded && target->CanHoldFocus();
    if (!stillWanted)
        return;
    focused_ = target;
    lastFocused_ = target;
    target->Entered(entry);
    if (View* view = target->GetView())
        view->TakeFocus();
    target->RaiseGotFocus();
}

void FormModel::ReviewFocus()
{
    if (focused_ && !focused_->HoldsForChain(&WidgetState::visible))
        MoveFocus(nullptr);
    else if (focused_ && !focused_->HoldsForChain(&WidgetState::enabled))
        MoveFocus(nullptr);
    else if (focused_ && !focused_->Denial().empty())
        MoveFocus(nullptr);
}

// Whoever walks the rows by key goes on from the same row.
void FormModel::PressKeepingFocus(WidgetCore& pressed, const std::function<void()>& press)
{
    WidgetCore* from = focused_;
    const auto self = weak_from_this().lock();
    press();
    const bool focusUnmoved = !focused_ || focused_ == &pressed;
    if (from && focusUnmoved && !state_.unloaded && from->CanHoldFocus())
        MoveFocus(from, Entry::Return);
}

WidgetCore* FormModel::NextStop(bool forward) const
{
    const std::size_t count = widgets_.size();
    const WidgetCore* from = focused_ ? focused_ : lastFocused_;
    const auto place = std::find_if(widgets_.begin(), widgets_.end(),
                                    [from](const auto& widget) { return widget.get() == from; });
    const bool known = place != widgets_.end();
    std::size_t at = known ? static_cast<std::size_t>(place - widgets_.begin()) : (forward ? count - 1 : 0);
    for (std::size_t step = 0; step < count; ++step) {
        at = forward ? (at + 1) % count : (at + count - 1) % count;
        WidgetCore* widget = widgets_[at].get();
        if (widget->State().tabStop && widget->CanHoldFocus())
            return widget;
    }
    return nullptr;
}

void FormModel::FocusNext(bool forward)
{
    if (WidgetCore* next = NextStop(forward))
        MoveFocus(next);
}

void FormModel::UserPressesKey(FormKey key)
{
    ByUser([this, key] {
        if (!Refusal().empty() || (focused_ && focused_->TakesKey(key)))
            return;
        switch (key) {
        case FormKey::Tab: return FocusNext(true);
        case FormKey::BackTab: return FocusNext(false);
        case FormKey::Enter: return PressEnter();
        case FormKey::Escape: return PressEscape();
        }
    });
}

void FormModel::PressEnter()
{
    if (focused_ && focused_->TakesEnter())
        return;
    if (WidgetCore* button = ButtonOf(&WidgetCore::ConfirmsForm))
        button->TakesEnter();
    else
        FocusNext(true);
}

// Nobody is held in a form: the second Escape leaves even where the field that was left took the focus back.
void FormModel::PressEscape()
{
    WidgetCore* cancel = ButtonOf(&WidgetCore::LeavesForm);
    if (!cancel)
        return;
    const bool warns = design_.guardsTyping && typedSinceShown_ && !escapeWarned_ && focused_ != cancel;
    if (!warns)
        return cancel->UserPressesInPlace();
    MoveFocus(cancel);
    escapeWarned_ = true;
}

// Where there is nothing to enter, only to confirm, Enter confirms nothing by chance.
void FormModel::FocusFirst()
{
    const bool hasField = std::any_of(widgets_.begin(), widgets_.end(), [](const auto& widget) {
        return widget->State().tabStop && widget->CanHoldFocus() && widget->IsField();
    });
    WidgetCore* cancel = hasField ? nullptr : ButtonOf(&WidgetCore::LeavesForm);
    if (cancel)
        MoveFocus(cancel);
    else
        FocusNext(true);
}

} // namespace kova::toolkit
