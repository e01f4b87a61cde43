#include "toolkits/common/grid/navigation_bar.hpp"

#include "agenda/contracts/text.hpp"
#include "toolkits/common/form.hpp"

namespace kova::toolkit {

NavigationBarModel::NavigationBarModel(FormModel& form, const ControlDesign& design)
    : WidgetModel(form, design)
{
}

void NavigationBarModel::FirstRecord(Double value)
{
    Writing("FirstRecord", value);
    written_.first = value;
}

void NavigationBarModel::LastRecord(Double value)
{
    Writing("LastRecord", value);
    written_.last = value;
}

void NavigationBarModel::RecordCount(Double value)
{
    Writing("RecordCount", value);
    written_.count = value;
}

void NavigationBarModel::PageSize(Double value)
{
    Writing("PageSize", value);
    written_.pageSize = value;
}

void NavigationBarModel::Refresh()
{
    Calling("Refresh");
    shown_ = written_;
    Tell(Aspect::Content);
}

void NavigationBarModel::UserPresses(int button)
{
    ByUser([this, button] {
        if (!Offers(button))
            return;
        Reach(button);
        if (!FocusForPress())
            return;
        auto number = static_cast<Integer>(button);
        GetForm().Raise(click_, number);
    });
}

void NavigationBarModel::Reach(int button)
{
    reached_ = button;
    Tell(Aspect::Selection);
}

void NavigationBarModel::UserWalks(bool right)
{
    ByUser([this, right] {
        const int step = right ? 1 : -1;
        int button = (reached_ == 0 ? CurrentButton() : reached_) + step;
        while (button >= FirstPage && button <= LastPage && !Offers(button))
            button += step;
        if (Offers(button))
            Reach(button);
    });
}

bool NavigationBarModel::TakesEnter()
{
    UserPresses(CurrentButton());
    return true;
}

int NavigationBarModel::CurrentButton() const
{
    if (reached_ != 0)
        return Offers(reached_) ? reached_ : 0;
    for (const int button : {FirstPage, PreviousPage, NextPage, LastPage}) {
        if (Offers(button))
            return button;
    }
    return 0;
}

bool NavigationBarModel::Offers(int button) const
{
    switch (button) {
    case FirstPage:
    case PreviousPage: return shown_.first > 1;
    case NextPage:
    case LastPage: return shown_.last < shown_.count;
    default: return false;
    }
}

Text NavigationBarModel::ShownText() const
{
    return TextOf(shown_.first) + " - " + TextOf(shown_.last) + " de " + TextOf(shown_.count);
}

} // namespace kova::toolkit
