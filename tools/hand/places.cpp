#include "tools/hand/places.hpp"

#include "toolkits/common/form.hpp"
#include "toolkits/common/grid/grid.hpp"
#include "toolkits/common/toolkit.hpp"
#include "toolkits/qt/boxes/field_frame.hpp"
#include "toolkits/qt/boxes/line_edit.hpp"
#include "toolkits/qt/form.hpp"
#include "toolkits/qt/form_area.hpp"
#include "toolkits/qt/grid/grid_canvas.hpp"
#include "toolkits/qt/look/theme.hpp"
#include "toolkits/qt/widget_view.hpp"

#include <QApplication>
#include <QWindow>

namespace kova::hand {

namespace {

constexpr int EndButtonInset = 10;

std::string NameOf(const QWidget* widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (!widget->objectName().isEmpty())
            return widget->objectName().toStdString();
    }
    return "a widget without a name";
}

/// Whether `window` is `other` or was opened over it.
bool StandsOver(const QWidget* window, const QWidget* other)
{
    const QWindow* handle = window->windowHandle();
    for (; handle; handle = handle->transientParent()) {
        if (handle == other->windowHandle())
            return true;
    }
    for (; window; window = window->parentWidget()) {
        if (window == other)
            return true;
    }
    return false;
}

/// The window that lies above the place: one that was opened over the widget's own. Null where there is none.
const QWidget* WindowAbove(const QWidget& own, const QPoint& onScreen)
{
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        const bool takesMouse =
            window->isVisible() && window != &own && !(window->windowFlags() & Qt::WindowTransparentForInput);
        if (takesMouse && window->windowHandle() && window->frameGeometry().contains(onScreen)
            && StandsOver(window, &own))
            return window;
    }
    return nullptr;
}

std::string KeptAway(const QWidget& widget)
{
    const QWidget* own = widget.window();
    const QWidget* popup = QApplication::activePopupWidget();
    if (popup && popup != own)
        return " is behind an open list or menu";
    const QWidget* modal = QApplication::activeModalWidget();
    if (!popup && modal && !StandsOver(own, modal))
        return " is under " + NameOf(modal);
    return {};
}

std::string Hidden(const QWidget& widget, const QPoint& place)
{
    const QWidget* own = widget.window();
    if (!widget.visibleRegion().contains(place))
        return " is outside its window";
    const QPoint inWindow = widget.mapTo(own, place);
    const QWidget* top = own->childAt(inWindow);
    if (top && top != &widget && !widget.isAncestorOf(top))
        return " is covered by " + NameOf(top);
    if (const QWidget* above = WindowAbove(*own, own->mapToGlobal(inWindow)))
        return " is covered by " + NameOf(above);
    return {};
}

} // namespace

Spot::Spot(QWidget* target) : widget(target), place(target ? target->rect().center() : QPoint()) { }

QWindow* WindowUnder(const QWidget* widget)
{
    const QWidget* top = widget ? widget->window() : nullptr;
    return top && top->isVisible() ? top->windowHandle() : nullptr;
}

std::string WhyNot(const Spot& spot)
{
    if (!spot.widget)
        return "it does not exist";
    const std::string name = NameOf(spot.widget);
    if (!spot.widget->isVisible() || !WindowUnder(spot.widget))
        return name + " is not visible";
    if (const std::string reason = KeptAway(*spot.widget); !reason.empty())
        return name + reason;
    if (!spot.widget->isEnabled())
        return name + " is disabled";
    const std::string reason = Hidden(*spot.widget, spot.place);
    return reason.empty() ? reason : name + reason;
}

QWidget* WidgetOf(const toolkit::WidgetCore& control)
{
    const auto* view = dynamic_cast<const qt::WidgetView*>(control.GetView());
    return view ? view->Window() : nullptr;
}

QWidget* WidgetOf(const toolkit::FormModel& form)
{
    return static_cast<const qt::FormWindow&>(form.Window()).Window();
}

QWidget* FormOnScreen(std::string_view form)
{
    for (QWidget* widget : QApplication::allWidgets()) {
        auto* found = dynamic_cast<qt::FormWidget*>(widget);
        if (!found || found->Model().Design().name != form)
            continue;
        const toolkit::FormModel* topmost = found->Model().GetToolkit().FindForm(form);
        return topmost ? WidgetOf(*topmost) : nullptr;
    }
    return nullptr;
}

QWidget* ControlOnScreen(std::string_view form, std::string_view control, int index)
{
    const auto* widget = dynamic_cast<qt::FormWidget*>(FormOnScreen(form));
    const toolkit::WidgetCore* found = widget ? widget->Model().Find(control, index) : nullptr;
    return found ? WidgetOf(*found) : nullptr;
}

Spot EndButtonOf(QWidget& box) { return {&box, QPoint(box.width() - EndButtonInset, box.height() / 2)}; }

Spot TextOf(QWidget& box)
{
    auto* frame = dynamic_cast<qt::FieldFrame*>(&box);
    return frame ? Spot(&frame->Editor()) : Spot(&box);
}

Spot RowOf(QWidget& grid, Long row)
{
    const auto& canvas = dynamic_cast<const qt::GridCanvas&>(grid);
    const toolkit::GridAxis& rows = canvas.Model().RowAxis();
    const toolkit::GridAxis& columns = canvas.Model().ColumnAxis();
    Long column = 0;
    while (column < columns.Count() && columns.Size(column) == 0)
        ++column;
    if (row < 0 || row >= rows.Count() || column == columns.Count() || canvas.RowArea(row).isEmpty())
        return {nullptr, QPoint()};
    return PlaceInGrid(
        grid, static_cast<Twips>(columns.Start(column)) + static_cast<Twips>(columns.Size(column)) / 2,
        static_cast<Twips>(rows.Start(row)) + static_cast<Twips>(rows.Size(row)) / 2);
}

Spot PlaceInGrid(QWidget& grid, Twips x, Twips y) { return {&grid, QPoint(qt::Pixels(x), qt::Pixels(y))}; }

} // namespace kova::hand
