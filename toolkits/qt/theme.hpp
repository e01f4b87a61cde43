#pragma once

#include "agenda/contracts/widgets/widget.hpp"

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>

class QApplication;

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

/// The contract's colour; the fallback for -1, the system's own colours for other negative values.
QColor ToColor(Colour colour, const QColor& fallback);

/// A font of that many points at 96 dpi, whatever the screen says of itself, so that texts fit boxes
/// given in twips. Where Arial is missing its metric twin stands in.
QFont MakeFont(const Text& family, double points, bool bold = false);

/// How well two colours stand out from each other: 1 (same) to 21 (black on white).
double Contrast(const QColor& a, const QColor& b);

namespace look {
extern const QColor Ink;
extern const QColor MutedInk;
extern const QColor Placeholder;
extern const QColor DisabledInk;
extern const QColor Paper;
extern const QColor LockedPaper;
extern const QColor Border;
extern const QColor BorderUnderMouse;
extern const QColor Accent;
extern const QColor AccentTint;
extern const QColor Rule;
/// A text that cannot stand.
extern const QColor Refusal;
inline constexpr double CornerRadius = 4.0;
} // namespace look

/// Gives the application the product's light look, independent of the desktop's theme.
void ApplyLook(QApplication& application);

} // namespace kova::qt
