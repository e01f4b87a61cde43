#pragma once

namespace kova::toolkit {

/// What changed in a widget; the view reads the rest from the model.
enum class Aspect {
    /// Left, Top, Width or Height.
    Geometry,
    /// The widget's own flag of visibility.
    Visible,
    /// The widget's own flag of enabling.
    Enabled,
    TabStop,
    ToolTip,
    /// Text, caption, rows, cells, value, numbers of a bar.
    Content,
    /// The caret and the selected characters of a box.
    Selection,
    /// Colours, fonts, lines and the other members that change only how a widget is drawn.
    Look,
    /// The widget came in front of its siblings.
    Order,
};

/// The picture of one widget on a screen. It draws what the model holds and forwards what the user does
/// to the model's User... functions; it has no behaviour of its own. A model works without a view too.
///
/// A view never outlives its model. While an event is on the stack no view is destroyed.
class View {
public:
    virtual ~View() = default;

    /// Called after the model has changed. Must not call User... functions.
    virtual void Update(Aspect aspect) = 0;
    /// The model gave the focus to this widget: the screen's own focus follows. The model has it already,
    /// so an answer through UserFocuses changes nothing.
    virtual void TakeFocus() = 0;
};

} // namespace kova::toolkit
