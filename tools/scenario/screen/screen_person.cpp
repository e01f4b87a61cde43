#include "tools/scenario/screen/screen_person.hpp"

#include "toolkits/common/boxes/check_box.hpp"
#include "toolkits/common/boxes/find_box.hpp"
#include "toolkits/common/boxes/option_button.hpp"
#include "toolkits/common/command_button.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/grid/navigation_bar.hpp"
#include "toolkits/qt/grid/navigation_bar.hpp"
#include "toolkits/qt/look/flat_button.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QListWidget>
#include <QWindow>

#include <algorithm>

namespace kova::scenario {

using hand::Hand;
using hand::Spot;

toolkit::WidgetCore* ScreenPerson::Reach(const ControlName& at, std::string& refusal)
{
    const toolkit::FormModel* form = toolkit_.FindForm(at.form);
    toolkit::WidgetCore* widget = form ? form->Find(at.control, at.index) : nullptr;
    if (!form)
        refusal = at.form + " does not exist";
    else if (!widget)
        refusal = at.form + "." + at.control + (at.index < 0 ? "" : "(" + std::to_string(at.index) + ")")
            + " does not exist";
    else
        refusal = widget->Refusal();
    if (widget && !refusal.empty())
        PressInVain(*widget);
    return refusal.empty() ? widget : nullptr;
}

template <class Model> Model* ScreenPerson::Reach(const ControlName& at, std::string& refusal)
{
    toolkit::WidgetCore* widget = Reach(at, refusal);
    auto* model = dynamic_cast<Model*>(widget);
    if (widget && !model)
        refusal = widget->FullName() + " is a " + NameOf(widget->KindOfWidget());
    return model;
}

// On what is to be seen but takes no input: it is disabled, or its window is under another one.
void ScreenPerson::PressInVain(const toolkit::WidgetCore& widget)
{
    QWidget* target = hand::WidgetOf(widget);
    QWindow* window = target && target->isVisible() ? hand::WindowUnder(target) : nullptr;
    if (!window)
        return;
    const QPoint place = target->mapTo(target->window(), target->rect().center());
    const QWidget* top = target->window()->childAt(place);
    if (top && (top == target || target->isAncestorOf(top)))
        Hand::TapAt(*window, place);
}

std::string ScreenPerson::Click(const ControlName& at)
{
    std::string refusal;
    toolkit::WidgetCore* widget = Reach(at, refusal);
    if (!widget)
        return refusal;
    const bool canBePressed = dynamic_cast<toolkit::CommandButtonModel*>(widget)
        || dynamic_cast<toolkit::CheckBoxModel*>(widget) || dynamic_cast<toolkit::OptionButtonModel*>(widget);
    if (!canBePressed)
        return widget->FullName() + " is a " + NameOf(widget->KindOfWidget());
    const Spot spot(hand::WidgetOf(*widget));
    hand_.Reveal(spot);
    return hand_.Click(spot);
}

std::string ScreenPerson::ChooseRow(const ControlName& at, const RowFinder& find)
{
    std::string refusal;
    auto* box = Reach<toolkit::ComboBoxModel>(at, refusal);
    if (!box)
        return refusal;
    const std::string name = box->FullName();
    const auto form = box->GetForm().weak_from_this();
    const Spot spot(hand::WidgetOf(*box));
    hand_.Reveal(spot);
    if (refusal = hand_.Click(spot); !refusal.empty())
        return refusal;
    const auto alive = form.lock();
    if (!alive || alive->Current().unloaded)
        return at.form + " is not visible";
    QListWidget* list = Hand::OpenList();
    if (!list && !box->Refusal().empty())
        return box->Refusal();
    const std::size_t row = find(box->ShownRows(), refusal);
    if (row >= box->ShownRows().size()) {
        if (list)
            hand_.Key(Qt::Key_Escape);
        return name + " has no row " + refusal;
    }
    return list ? hand_.Pick(*list, static_cast<int>(row)) : std::string();
}

std::string ScreenPerson::Choose(const ControlName& at, int row)
{
    return ChooseRow(at, [row](const auto&, std::string& name) {
        name = std::to_string(row);
        return static_cast<std::size_t>(row);
    });
}

std::string ScreenPerson::Choose(const ControlName& at, std::string_view text)
{
    return ChooseRow(at, [text](const auto& rows, std::string& name) {
        name = "\"" + std::string(text) + "\"";
        const auto found =
            std::find_if(rows.begin(), rows.end(), [text](const auto& row) { return row.text == text; });
        return static_cast<std::size_t>(found - rows.begin());
    });
}

std::string ScreenPerson::Type(const ControlName& at, std::string_view text)
{
    std::string refusal;
    auto* box = Reach<toolkit::EditCore>(at, refusal);
    if (!box)
        return refusal;
    if (!box->AllowsTyping())
        return box->FullName() + " is locked";
    if (refusal = Focus(at); !refusal.empty())
        return refusal;
    if (toolkit_.FindForm(at.form) != &box->GetForm() || !box->HasFocus())
        return {};
    if (text.empty() && box->ShownSelection().caret > 0)
        hand_.Key(Qt::Key_Backspace);
    hand_.Type(std::string(text));
    return {};
}

std::string ScreenPerson::Press(const ControlName& at)
{
    std::string refusal;
    auto* box = Reach<toolkit::FindBoxModel>(at, refusal);
    if (!box)
        return refusal;
    QWidget* frame = hand::WidgetOf(*box);
    hand_.Reveal(hand::EndButtonOf(*frame));
    return hand_.Click(hand::EndButtonOf(*frame));
}

// A text is selected as if Tab had come there.
std::string ScreenPerson::Focus(const ControlName& at)
{
    std::string refusal;
    toolkit::WidgetCore* widget = Reach(at, refusal);
    if (!widget)
        return refusal;
    if (!widget->IsFocusable())
        return widget->FullName() + " takes no focus";
    if (!dynamic_cast<toolkit::EditCore*>(widget))
        return FocusByTab(*widget);
    const auto form = widget->GetForm().weak_from_this();
    const Spot spot = hand::TextOf(*hand::WidgetOf(*widget));
    hand_.Reveal(spot);
    if (refusal = hand_.Click(spot); !refusal.empty())
        return refusal;
    const auto alive = form.lock();
    if (alive && !alive->Current().unloaded && widget->HasFocus())
        hand_.Key(Qt::Key_A, Qt::ControlModifier);
    return {};
}

// What the mouse cannot enter without pressing it.
std::string ScreenPerson::FocusByTab(toolkit::WidgetCore& widget)
{
    toolkit::FormModel& form = widget.GetForm();
    for (std::size_t step = 0; step < form.Widgets().size() && !widget.HasFocus(); ++step)
        hand_.Key(Qt::Key_Tab);
    return widget.HasFocus() ? std::string() : widget.FullName() + " is not reached by Tab";
}

Spot ScreenPerson::SpotOfRow(toolkit::GridModel& grid, Long row, std::string& refusal)
{
    QWidget* canvas = hand::WidgetOf(grid);
    const bool exists = row >= 0 && row < grid.RowAxis().Count() && grid.RowAxis().Size(row) > 0;
    Spot spot = exists ? hand_.RevealRow(*canvas, row) : Spot(nullptr, QPoint());
    if (!spot.widget)
        refusal = grid.FullName() + " has no row " + std::to_string(row);
    return spot;
}

void ScreenPerson::PassOn()
{
    Hand::PassOn();
    toolkit_.ForgetPointer();
}

std::string ScreenPerson::Hover(const ControlName& at, Long row)
{
    const std::string refusal = Rest(at, row);
    PassOn();
    return refusal;
}

std::string ScreenPerson::Rest(const ControlName& at, Long row)
{
    std::string refusal;
    auto* grid = Reach<toolkit::GridModel>(at, refusal);
    if (!grid)
        return refusal;
    const Spot spot = SpotOfRow(*grid, row, refusal);
    return refusal.empty() ? hand_.MoveTo(spot) : refusal;
}

std::string ScreenPerson::HoverAt(const ControlName& at, Twips x, Twips y)
{
    std::string refusal;
    auto* grid = Reach<toolkit::GridModel>(at, refusal);
    if (grid)
        refusal = hand_.MoveTo(hand::PlaceInGrid(*hand::WidgetOf(*grid), x, y));
    PassOn();
    return refusal;
}

std::string ScreenPerson::Select(const ControlName& at, Long row)
{
    std::string refusal;
    auto* grid = Reach<toolkit::GridModel>(at, refusal);
    if (!grid)
        return refusal;
    const Spot spot = SpotOfRow(*grid, row, refusal);
    return refusal.empty() ? hand_.Tap(spot) : refusal;
}

std::string ScreenPerson::Bar(const ControlName& at, int button)
{
    std::string refusal;
    auto* bar = Reach<toolkit::NavigationBarModel>(at, refusal);
    if (!bar)
        return refusal;
    if (!bar->Offers(button))
        return bar->FullName() + " does not offer button " + std::to_string(button);
    auto* window = dynamic_cast<qt::NavigationWindow*>(hand::WidgetOf(*bar));
    return hand_.Click(Spot(&window->Button(button)));
}

std::string ScreenPerson::Key(const headless::KeyPress& key)
{
    const toolkit::FormModel* form = toolkit_.ActiveForm();
    std::string refusal = form ? form->Refusal() : "no form is open";
    const std::string name = key.character ? toolkit::ToText(std::u32string(1, key.character)) : key.Chord();
    // A key that nobody takes is pressed all the same.
    hand_.Key(name);
    return refusal;
}

std::string ScreenPerson::CloseForm(const std::string& form)
{
    const toolkit::FormModel* model = toolkit_.FindForm(form);
    if (!model)
        return form + " does not exist";
    const std::string refusal = model->MayBeClosed() ? std::string() : model->Refusal();
    if (QWidget* widget = hand::WidgetOf(*model))
        hand_.CloseWindow(*widget->window());
    return refusal;
}

} // namespace kova::scenario
