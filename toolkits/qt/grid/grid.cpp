#include "toolkits/qt/grid/grid.hpp"

namespace kova::qt {

GridView::GridView(toolkit::GridModel& model, QWidget* parent) : ViewOf(model, new GridCanvas(model, parent))
{
    WatchFocus(&Shown());
}

void GridView::ShowContent() { Shown().Apply(GetModel().TakeChange()); }

void GridView::ShowLook() { Shown().Apply({.all = true}); }

void GridView::ShowGeometry()
{
    WidgetView::ShowGeometry();
    Shown().Apply({.all = true});
}

} // namespace kova::qt
