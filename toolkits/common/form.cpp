#include "toolkits/common/form.hpp"

#include "agenda/contracts/foreign_failure.hpp"
#include "toolkits/common/toolkit.hpp"

#include <exception>

namespace kova::toolkit {

FormModel::FormModel(ToolkitModel& toolkit, const FormDesign& design) : toolkit_(toolkit), design_(design)
{
    state_.caption = design.caption;
    state_.width = design.width;
    state_.height = design.height;
}

FormModel::~FormModel() = default;

MemberAccess FormModel::AccessTo(std::string_view member) const { return {design_.name, "", -1, member}; }

void FormModel::Reading(std::string_view member) const
{
    if (auto* observer = toolkit_.Observer())
        observer->Read(AccessTo(member));
}

void FormModel::Writing(std::string_view member, const Value& value) const
{
    if (auto* observer = toolkit_.Observer())
        observer->Write(AccessTo(member), value);
}

void FormModel::Calling(std::string_view member, const Value& argument) const
{
    if (auto* observer = toolkit_.Observer())
        observer->Call(AccessTo(member), argument);
}

Text FormModel::Caption() const
{
    Reading("Caption");
    return state_.caption;
}

void FormModel::Caption(const Text& value)
{
    Writing("Caption", value);
    state_.caption = value;
    window_->Update(FormAspect::Caption);
}

bool FormModel::Visible() const
{
    Reading("Visible");
    return state_.visible;
}

bool FormModel::Enabled() const
{
    Reading("Enabled");
    return state_.enabled;
}

void FormModel::Enabled(bool value)
{
    Writing("Enabled", value);
    state_.enabled = value;
    window_->Update(FormAspect::Enabled);
}

Long FormModel::Handle() const
{
    Reading("Handle");
    return window_->Handle();
}

std::string FormModel::Refusal() const
{
    if (!IsOnScreen())
        return design_.name + " is not visible";
    if (toolkit_.IsAsking())
        return design_.name + " is behind a message box or menu";
    if (toolkit_.IsShutOut(*this))
        return design_.name + " is under a modal form";
    if (!state_.enabled)
        return design_.name + " is disabled";
    return {};
}

// A form that a failed procedure has left disabled must not hold the user captive; while a pause lasts, its
// procedure goes on with the form.
bool FormModel::MayBeClosed() const
{
    const bool isReachable = IsOnScreen() && !toolkit_.IsAsking() && !toolkit_.IsShutOut(*this);
    return isReachable && (state_.enabled || !toolkit_.IsPausing());
}

void FormModel::Owner(std::weak_ptr<void> owner)
{
    owner_ = std::move(owner);
    hasOwner_ = true;
}

void FormModel::Refresh()
{
    Calling("Refresh");
    toolkit_.FormRepaints(*this);
    window_->Refresh();
}

void FormModel::PopupMenu(Menu& parent, Twips x, Twips y)
{
    Calling("PopupMenu", parent.Name());
    dynamic_cast<WidgetCore&>(parent).PopUp(*this, x, y);
}

void FormModel::ByUser(const std::function<void()>& action)
{
    const EventScope scope(toolkit_);
    const auto self = weak_from_this().lock();
    try {
        action();
    } catch (const std::exception& failure) {
        toolkit_.UnhandledFailure(AsFailure(failure));
    }
}

void FormModel::UserCloses()
{
    ByUser([this] {
        if (MayBeClosed())
            UnloadNow();
    });
}

} // namespace kova::toolkit
