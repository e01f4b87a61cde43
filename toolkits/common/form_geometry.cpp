// Place and size of a form, and its place inside a container.

#include "toolkits/common/form.hpp"

#include <algorithm>

namespace kova::toolkit {

InnerSize FormModel::Frame() const
{
    const bool framed = design_.bordered && !state_.insideContainer;
    return framed ? InnerSize{FrameWidth, FrameHeight} : InnerSize{};
}

InnerSize FormModel::Inner() const
{
    const InnerSize frame = Frame();
    return {std::max<Twips>(state_.width - frame.width, 0), std::max<Twips>(state_.height - frame.height, 0)};
}

bool FormModel::IsOnScreen() const
{
    const InnerSize inner = Inner();
    return state_.visible && inner.width > 0 && inner.height > 0;
}

Twips FormModel::Left() const
{
    Reading("Left");
    return state_.left;
}

void FormModel::Left(Twips value)
{
    Writing("Left", static_cast<Double>(value));
    MoveTo(&State::left, value);
}

Twips FormModel::Top() const
{
    Reading("Top");
    return state_.top;
}

void FormModel::Top(Twips value)
{
    Writing("Top", static_cast<Double>(value));
    MoveTo(&State::top, value);
}

Twips FormModel::Width() const
{
    Reading("Width");
    return state_.width;
}

void FormModel::Width(Twips value)
{
    Writing("Width", static_cast<Double>(value));
    Resize(&State::width, value);
}

Twips FormModel::Height() const
{
    Reading("Height");
    return state_.height;
}

void FormModel::Height(Twips value)
{
    Writing("Height", static_cast<Double>(value));
    Resize(&State::height, value);
}

Twips FormModel::ScaleLeft() const
{
    Reading("ScaleLeft");
    return 0;
}

Twips FormModel::ScaleTop() const
{
    Reading("ScaleTop");
    return 0;
}

Twips FormModel::ScaleWidth() const
{
    Reading("ScaleWidth");
    return Inner().width;
}

Twips FormModel::ScaleHeight() const
{
    Reading("ScaleHeight");
    return Inner().height;
}

void FormModel::MoveTo(Twips State::*member, Twips value)
{
    state_.*member = value;
    window_->Update(FormAspect::Geometry);
}

void FormModel::Resize(Twips State::*member, Twips value)
{
    if (value < 0)
        throw Failure(FailureNumber::BadPropertyValue);
    if (state_.*member == value)
        return;
    state_.*member = value;
    window_->Update(FormAspect::Geometry);
    if (shownOnce_)
        Raise(resize_);
}

void FormModel::TakeInner(InnerSize inner)
{
    const InnerSize frame = Frame();
    const Twips width = inner.width + frame.width;
    const Twips height = inner.height + frame.height;
    if (width == state_.width && height == state_.height)
        return;
    state_.width = width;
    state_.height = height;
    if (shownOnce_)
        Raise(resize_);
}

void FormModel::SetParent(Long containerHandle)
{
    Calling("SetParent", containerHandle);
    const auto inner = window_->SetParent(containerHandle);
    if (!inner)
        throw Failure(FailureNumber::InvalidArgument);
    state_.insideContainer = true;
    state_.left = 0;
    state_.top = 0;
    window_->Update(FormAspect::Geometry);
    TakeInner(*inner);
}

// What lays a form out may hide a control for as long as it moves it: the focus is back with it then.
void FormModel::UserResizes(InnerSize inner)
{
    ByUser([this, inner] {
        WidgetCore* former = focused_;
        TakeInner(inner);
        if (former && !focused_)
            MoveFocus(former);
    });
}

void FormModel::UserMoves(Twips left, Twips top)
{
    state_.left = left;
    state_.top = top;
}

} // namespace kova::toolkit
