// The widgets of a form: making them, finding them, adding one at run time.

#include "toolkits/common/form.hpp"
#include "toolkits/common/toolkit.hpp"

namespace kova::toolkit {

void FormModel::Build()
{
    for (const ControlDesign& control : design_.controls)
        AddWidget(control);
    ConnectContainers();
    window_ = toolkit_.MakeWindow(*this);
    for (const auto& widget : widgets_)
        widget->Complete();
    AttachViews();
}

WidgetCore& FormModel::AddWidget(const ControlDesign& design)
{
    if (Find(design.name, design.index))
        throw Failure(FailureNumber::BadPropertyValue);
    widgets_.push_back(toolkit_.MakeWidget(*this, design));
    return *widgets_.back();
}

void FormModel::ConnectContainers()
{
    for (const auto& widget : widgets_) {
        const std::string& name = widget->Design().container;
        if (name.empty())
            continue;
        WidgetCore* container = Find(name);
        if (!container || container == widget.get() || !container->HoldsOthers())
            throw Failure(FailureNumber::BadPropertyValue);
        widget->Container(container);
    }
    for (const auto& widget : widgets_) {
        std::size_t depth = 0;
        for (const WidgetCore* at = widget.get(); at; at = at->Container()) {
            if (++depth > widgets_.size())
                throw Failure(FailureNumber::BadPropertyValue);
        }
    }
}

void FormModel::AttachViews()
{
    for (const auto& widget : widgets_)
        AttachView(*widget);
}

void FormModel::AttachView(WidgetCore& widget)
{
    if (widget.GetView())
        return;
    if (widget.Container())
        AttachView(*widget.Container());
    widget.AttachView(toolkit_.MakeView(widget));
}

std::vector<Widget*> FormModel::Controls() const
{
    std::vector<Widget*> controls;
    for (const auto& widget : widgets_)
        controls.push_back(&widget->Face());
    return controls;
}

WidgetCore* FormModel::Find(std::string_view name, int index) const
{
    for (const auto& widget : widgets_) {
        if (widget->Design().name == name && widget->Design().index == index)
            return widget.get();
    }
    return nullptr;
}

Widget& FormModel::Control(std::string_view name, int index) const
{
    if (WidgetCore* widget = Find(name, index))
        return widget->Face();
    throw Failure(FailureNumber::NoSuchMember);
}

Widget& FormModel::Add(WidgetKind kind, std::string_view name)
{
    Calling("Add", name);
    ControlDesign design;
    design.kind = kind;
    design.name = name;
    design.visible = false;
    WidgetCore& widget = AddWidget(design);
    widget.Complete();
    AttachView(widget);
    return widget.Face();
}

} // namespace kova::toolkit
