#pragma once

#include "agenda/contracts/widgets/widget.hpp"

#include <QPoint>
#include <QPointer>
#include <QWidget>

#include <string>
#include <string_view>

class QWindow;

namespace kova::toolkit {
class FormModel;
class WidgetCore;
} // namespace kova::toolkit

/// Where things are on the screen, and whether a person gets at them.
namespace kova::hand {

/// A place inside a widget, in its own pixels: a mouse points at whole ones.
struct Spot {
    Spot(QWidget* target, const QPoint& at) : widget(target), place(at) { }
    /// The middle.
    explicit Spot(QWidget* target);

    QPointer<QWidget> widget;
    QPoint place;
};

/// The window in which a widget lies; null where it is not on show.
QWindow* WindowUnder(const QWidget* widget);

/// Why a person cannot press there, as in "frmLista.kvcmdAlterar is covered by frmLista.kvpicEspera"; ""
/// where he can. What is asked is the screen, not a model: whether it is on show, what lies above it, and
/// whether a modal window, an open list or a menu keeps the mouse away.
std::string WhyNot(const Spot& spot);

/// The form's widget; where several forms carry the name, that of the one shown last. Null where there is
/// none.
QWidget* FormOnScreen(std::string_view form);
/// The widget of "frmLista", "kvcmdAlterar"; of one of a group with its index. Null where there is none.
QWidget* ControlOnScreen(std::string_view form, std::string_view control, int index = -1);
/// Null where the control is not drawn.
QWidget* WidgetOf(const toolkit::WidgetCore& control);
QWidget* WidgetOf(const toolkit::FormModel& form);

/// The end button of a box that has one: magnifier, cross, calendar.
Spot EndButtonOf(QWidget& box);
/// The text part of a box, left of its end button.
Spot TextOf(QWidget& box);
/// Where the mouse meets a row of a grid: the middle of its first visible column. Invalid, without a
/// widget, where the row is not on show.
Spot RowOf(QWidget& grid, Long row);
/// A place inside a grid in twips.
Spot PlaceInGrid(QWidget& grid, Twips x, Twips y);

} // namespace kova::hand
