#pragma once

#include "agenda/contracts/value.hpp"

#include <functional>
#include <string>

namespace kova {

/// Length in twips, 1440 per inch and 15 per pixel of a 96 dpi screen.
using Twips = float;

/// Red + 256 * green + 65536 * blue; the system's colours are negative.
using Colour = Long;

constexpr Colour Rgb(int red, int green, int blue) { return red + 256 * green + 65536 * blue; }

namespace colours {
inline constexpr Colour Black = 0;
inline constexpr Colour White = Rgb(255, 255, 255);
inline constexpr Colour Red = 255;
/// The system's own colour of button texts; a toolkit resolves it when it paints.
inline constexpr Colour ButtonText = static_cast<Colour>(0x80000012);
} // namespace colours

enum class WidgetKind {
    KVComboBox,
    KVTextBox,
    KVFind,
    KVDTPicker,
    KVTime,
    KVNumberBox,
    KVCommandButton,
    KVTheme,
    KVNavigationBar,
    MSFlexGrid,
    Label,
    PictureBox,
    Image,
    CheckBox,
    OptionButton,
    Menu,
    Shape,
};

/// The kind's name as walkers and failure texts give it, such as "KVComboBox".
const char* NameOf(WidgetKind kind);

class Form;

/// What every widget has. Writes of geometry, visibility and enabling raise no event; hiding or
/// disabling the widget that has the focus makes it lose the focus, which raises its LostFocus.
class Widget {
public:
    virtual ~Widget() = default;

    virtual WidgetKind Kind() const = 0;
    /// Name in its form; widgets of an indexed group share it.
    virtual Text Name() const = 0;
    /// Number within an indexed group, -1 where the widget is in none.
    virtual int Index() const = 0;

    /// Position inside the container and size, in twips. A negative size is failure 380.
    virtual Twips Left() const = 0;
    virtual void Left(Twips) = 0;
    virtual Twips Top() const = 0;
    virtual void Top(Twips) = 0;
    virtual Twips Width() const = 0;
    virtual void Width(Twips) = 0;
    virtual Twips Height() const = 0;
    virtual void Height(Twips) = 0;

    /// The widget's own flag: true also inside a container that is hidden.
    virtual bool Visible() const = 0;
    virtual void Visible(bool) = 0;
    /// The whole-widget switch. A disabled widget takes neither the user's input nor the focus; writes
    /// from code work on as ever, with their events.
    virtual bool Enabled() const = 0;
    virtual void Enabled(bool) = 0;
    virtual bool TabStop() const = 0;
    virtual void TabStop(bool) = 0;
    /// The text that hovering shows. "" shows none.
    virtual Text ToolTipText() const = 0;
    virtual void ToolTipText(const Text&) = 0;
    /// A text for the form's own use; shown nowhere. "" by design.
    virtual Text Tag() const = 0;
    virtual void Tag(const Text&) = 0;

    /// Moves the focus here. The widget that had it raises LostFocus inside the call, then this one
    /// GotFocus. Does nothing where the widget, its container or its form is hidden or disabled and where the
    /// kind takes no focus. Where the widget has the focus already, no event is raised. A box selects its
    /// text, then too.
    virtual void SetFocus() = 0;
    /// Puts the widget in front of its siblings.
    virtual void BringToFront() = 0;
};

/// The widget as its kind; null where it is of another kind.
template <class Kind> Kind* As(Widget& widget) { return dynamic_cast<Kind*>(&widget); }

using Handler = std::function<void()>;

} // namespace kova
