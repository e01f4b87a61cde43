#include "tools/scenario/headless_person.hpp"

#include "toolkits/common/boxes/check_box.hpp"
#include "toolkits/common/boxes/combo_box.hpp"
#include "toolkits/common/boxes/find_box.hpp"
#include "toolkits/common/boxes/option_button.hpp"
#include "toolkits/common/command_button.hpp"
#include "toolkits/common/event_scope.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/grid/grid.hpp"
#include "toolkits/common/grid/navigation_bar.hpp"
#include "toolkits/headless/keys.hpp"
#include "toolkits/headless/toolkit.hpp"

namespace kova::scenario {

namespace {

struct Point {
    Twips x = 0;
    Twips y = 0;
};

/// Where a control's corner lies in its form.
Point CornerOf(const toolkit::WidgetCore& control)
{
    Point corner;
    for (const toolkit::WidgetCore* widget = &control; widget; widget = widget->Container()) {
        corner.x += widget->State().left;
        corner.y += widget->State().top;
    }
    return corner;
}

template <class Model> bool Is(const toolkit::WidgetCore& widget)
{
    return dynamic_cast<const Model*>(&widget) != nullptr;
}

bool CanBePressed(const toolkit::WidgetCore& widget)
{
    return Is<toolkit::CommandButtonModel>(widget) || Is<toolkit::CheckBoxModel>(widget)
        || Is<toolkit::OptionButtonModel>(widget);
}

bool CanBeTypedIn(const toolkit::WidgetCore& widget)
{
    const auto* box = dynamic_cast<const toolkit::EditCore*>(&widget);
    return box && box->AllowsTyping();
}

} // namespace

// A mouse in another form has not left this one's window by its grid's edge.
void HeadlessPerson::MoveMouse(const ControlName& at,
                               const std::function<bool(const toolkit::WidgetCore&)>& fits)
{
    const toolkit::FormModel* form = resting_ ? toolkit_.FindForm(resting_->form) : nullptr;
    auto* grid = form ? dynamic_cast<toolkit::GridModel*>(form->Find(resting_->control, -1)) : nullptr;
    const toolkit::WidgetCore* target =
        form && form == toolkit_.FindForm(at.form) ? form->Find(at.control, at.index) : nullptr;
    if (!grid || !target || !target->Refusal().empty() || !fits(*target))
        return;
    const Point corner = CornerOf(*grid);
    const Point goal = CornerOf(*target);
    const Twips x = goal.x + target->State().width / 2 - corner.x;
    const Twips y = goal.y + target->State().height / 2 - corner.y;
    if (x >= 0 && y >= 0 && x < grid->State().width && y < grid->State().height)
        return grid->UserMovesAbove(x, y);
    user_.Leave(resting_->form, resting_->control);
    resting_.reset();
}

std::string HeadlessPerson::Click(const ControlName& at)
{
    MoveMouse(at, &CanBePressed);
    return user_.Click(at.form, at.control, at.index);
}

std::string HeadlessPerson::Choose(const ControlName& at, int row)
{
    MoveMouse(at, &Is<toolkit::ComboBoxModel>);
    return user_.Choose(at.form, at.control, row, at.index);
}

std::string HeadlessPerson::Choose(const ControlName& at, std::string_view text)
{
    MoveMouse(at, &Is<toolkit::ComboBoxModel>);
    return user_.Choose(at.form, at.control, text, at.index);
}

std::string HeadlessPerson::Type(const ControlName& at, std::string_view text)
{
    MoveMouse(at, &CanBeTypedIn);
    return user_.Type(at.form, at.control, text, at.index);
}

std::string HeadlessPerson::Press(const ControlName& at)
{
    MoveMouse(at, &Is<toolkit::FindBoxModel>);
    return user_.Press(at.form, at.control, at.index);
}

// A text is selected as if Tab had come there.
std::string HeadlessPerson::Focus(const ControlName& at)
{
    MoveMouse(at, &Is<toolkit::EditCore>);
    const toolkit::EventScope scope(toolkit_);
    std::string refusal = user_.Focus(at.form, at.control, at.index);
    const toolkit::FormModel* form = toolkit_.FindForm(at.form);
    auto* box = form ? dynamic_cast<toolkit::EditCore*>(form->Find(at.control, at.index)) : nullptr;
    if (refusal.empty() && box && box->HasFocus())
        box->UserSelectsAll();
    return refusal;
}

std::string HeadlessPerson::Hover(const ControlName& at, Long row)
{
    resting_.reset();
    return user_.Hover(at.form, at.control, row);
}

std::string HeadlessPerson::HoverAt(const ControlName& at, Twips x, Twips y)
{
    resting_.reset();
    return user_.HoverAt(at.form, at.control, x, y);
}

std::string HeadlessPerson::Rest(const ControlName& at, Long row)
{
    std::string refusal = user_.Rest(at.form, at.control, row);
    if (refusal.empty())
        resting_ = at;
    return refusal;
}

std::string HeadlessPerson::Select(const ControlName& at, Long row)
{
    return user_.Select(at.form, at.control, row);
}

std::string HeadlessPerson::Bar(const ControlName& at, int button)
{
    MoveMouse(at, [button](const toolkit::WidgetCore& widget) {
        const auto* bar = dynamic_cast<const toolkit::NavigationBarModel*>(&widget);
        return bar && bar->Offers(button);
    });
    return user_.Bar(at.form, at.control, button);
}

std::string HeadlessPerson::Key(const headless::KeyPress& key) { return user_.Key(key); }

std::string HeadlessPerson::CloseForm(const std::string& form) { return user_.CloseForm(form); }

} // namespace kova::scenario
