// Loading, showing, hiding and unloading a form.

#include "toolkits/common/form.hpp"
#include "toolkits/common/toolkit.hpp"

namespace kova::toolkit {

void FormModel::Load()
{
    Calling("Load");
    LoadOnce();
}

void FormModel::LoadOnce()
{
    if (loaded_)
        return;
    loaded_ = true;
    Raise(load_);
}

void FormModel::Show(ShowMode mode)
{
    Calling("Show", static_cast<Long>(mode == ShowMode::Modal ? 1 : 0));
    if (state_.unloaded || (mode == ShowMode::Modal && state_.modal))
        throw Failure(FailureNumber::InvalidArgument);
    const EventScope scope(toolkit_);
    const auto self = weak_from_this().lock();
    toolkit_.FormShows(*this, mode);
    LoadOnce();
    if (state_.unloaded)
        return;
    if (mode == ShowMode::Modal)
        ShowModal();
    else
        ShowNow(mode);
}

void FormModel::ShowNow(ShowMode mode)
{
    const bool appears = !state_.visible;
    if (appears)
        typedSinceShown_ = escapeWarned_ = false;
    state_.visible = true;
    toolkit_.Shown(*this);
    try {
        RaiseShown(mode, appears);
    } catch (...) {
        if (appears)
            HideNow();
        throw;
    }
}

void FormModel::RaiseShown(ShowMode mode, bool appears)
{
    if (!shownOnce_) {
        shownOnce_ = true;
        Raise(resize_);
    }
    if (state_.visible)
        window_->Show(mode);
    if (appears && state_.visible)
        Raise(activate_);
    if (appears && state_.visible && !focused_)
        FocusFirst();
}

void FormModel::ShowModal()
{
    struct Modal {
        FormModel& form;
        explicit Modal(FormModel& shown) : form(shown)
        {
            form.state_.modal = true;
            form.toolkit_.PushModal(form);
        }
        ~Modal()
        {
            form.state_.modal = false;
            form.toolkit_.PopModal(form);
        }
    };
    const Modal modal(*this);
    ShowNow(ShowMode::Modal);
    if (state_.visible)
        window_->RunModal();
    if (state_.visible)
        HideNow();
}

void FormModel::Hide()
{
    Calling("Hide");
    toolkit_.FormHides(*this);
    HideNow();
}

void FormModel::HideNow()
{
    if (!state_.visible)
        return;
    state_.visible = false;
    toolkit_.Hidden(*this);
    window_->Hide();
    if (state_.modal)
        window_->EndModal();
}

bool FormModel::Unload()
{
    Calling("Unload");
    return UnloadNow();
}

bool FormModel::UnloadNow()
{
    if (state_.unloaded || unloading_)
        return state_.unloaded;
    const EventScope scope(toolkit_);
    const auto self = weak_from_this().lock();
    toolkit_.FormUnloads(*this);
    if (IsKeptByHandler())
        return false;
    state_.unloaded = true;
    focused_ = nullptr;
    HideNow();
    window_->Remove();
    DropHandlers();
    return true;
}

void FormModel::ContainerEnds()
{
    ByUser([this] { UnloadNow(); });
}

bool FormModel::IsKeptByHandler()
{
    struct Unloading {
        bool& flag;
        explicit Unloading(bool& unloading) : flag(unloading) { flag = true; }
        ~Unloading() { flag = false; }
    } const unloading(unloading_);
    bool cancel = false;
    Raise(unload_, cancel);
    return cancel;
}

void FormModel::DropHandlers()
{
    for (const auto& widget : widgets_)
        widget->DropHandlers();
    load_ = nullptr;
    activate_ = nullptr;
    resize_ = nullptr;
    unload_ = nullptr;
}

void FormModel::LetGo()
{
    DropHandlers();
    owner_.reset();
}

} // namespace kova::toolkit
