#pragma once

#include "agenda/contracts/widgets/widget.hpp"

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>

class QApplication;
class QPalette;

/// Colours, fonts and lengths of the product's look. Lengths are logical pixels: 15 twips each, however
/// large the screen draws them.
namespace kova::qt {

inline constexpr double TwipsOfPixel = 15.0;

/// Nearest pixel; halves go up, so that neighbours that touch in twips touch on the screen.
int Pixels(Twips length);
Twips ToTwips(double pixels);
/// Edges are rounded each, not the size.
QRect PixelRect(Twips left, Twips top, Twips width, Twips height);

inline QString FromText(const Text& text) { return QString::fromStdString(text); }
inline Text ToText(const QString& text) { return text.toStdString(); }
/// Line breaks as Qt wants them: "\r\n" becomes "\n".
QString Lines(const Text& text);

/// The contract's colour as it is, for paper; the fallback for -1, the system's own colours for other
/// negative values.
QColor ToColor(Colour colour, const QColor& fallback);

/// A design's colour on the screen. In the light look it is the colour itself; in the dark one grounds keep
/// their hue and order and become dark, and texts keep as much of theirs as can be read on that ground.
QColor GroundColor(Colour colour, const QColor& fallback);
QColor InkColor(Colour colour, const QColor& fallback, const QColor& ground);

/// A font of that many points at 96 dpi, whatever the screen says of itself, so that texts fit boxes
/// given in twips. Where Arial is missing its metric twin stands in.
QFont MakeFont(const Text& family, double points, bool bold = false);

/// How well two colours stand out from each other: 1 (same) to 21 (black on white).
double Contrast(const QColor& a, const QColor& b);

/// What a text on a ground needs to be read.
inline constexpr double LeastTextContrast = 4.5;

enum class Look { Light, Dark };

/// The colours of the look that the application has now; see ApplyLook.
namespace look {
extern const QColor& Ink;
extern const QColor& MutedInk;
extern const QColor& Placeholder;
extern const QColor& DisabledInk;
extern const QColor& Paper;
extern const QColor& LockedPaper;
extern const QColor& Border;
extern const QColor& BorderUnderMouse;
extern const QColor& Accent;
extern const QColor& AccentTint;
extern const QColor& Rule;
/// A text that cannot stand.
extern const QColor& Refusal;
/// The mark of a failure.
extern const QColor& Danger;
/// Ground of buttons that have none of their own, and of those that cannot be pressed.
extern const QColor& Plate;
extern const QColor& DisabledPlate;
/// Ground of bands at the upper edge of forms.
extern const QColor& Band;
/// What sheets of paper lie on, and their edge.
extern const QColor& Desk;
extern const QColor& DeskEdge;
inline constexpr double CornerRadius = 4.0;
} // namespace look

/// The look of the desktop's own palette, as an application has it before it gets ours.
Look LookOfDesktop(const QApplication& application);
Look CurrentLook();
/// From now on the colours are those of that look.
void CurrentLook(Look look);
/// The colours of the current look, as Qt hands them to what it draws itself.
QPalette CurrentPalette();

} // namespace kova::qt
