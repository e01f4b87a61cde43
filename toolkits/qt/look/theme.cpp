#include "toolkits/qt/look/theme.hpp"

#include "toolkits/common/whole_number.hpp"

#include <QApplication>
#include <QPalette>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <tuple>

namespace kova::qt {

namespace {

struct Colours {
    QColor ink;
    QColor mutedInk;
    QColor placeholder;
    QColor disabledInk;
    QColor paper;
    QColor lockedPaper;
    QColor border;
    QColor borderUnderMouse;
    QColor accent;
    QColor accentTint;
    QColor rule;
    QColor refusal;
    QColor danger;
    QColor plate;
    QColor disabledPlate;
    QColor band;
    QColor desk;
    QColor deskEdge;
    /// Of buttons that a style draws.
    QColor button;
};

const Colours LightColours{
    .ink = {38, 42, 48},
    .mutedInk = {104, 110, 118},
    .placeholder = {108, 114, 122},
    .disabledInk = {160, 165, 172},
    .paper = {255, 255, 255},
    .lockedPaper = {249, 249, 249},
    .border = {206, 210, 216},
    .borderUnderMouse = {160, 168, 178},
    .accent = {38, 110, 224},
    .accentTint = {232, 240, 254},
    .rule = {226, 229, 233},
    .refusal = {196, 32, 32},
    .danger = {204, 48, 48},
    .plate = {240, 242, 245},
    .disabledPlate = {240, 241, 243},
    .band = {248, 249, 251},
    .desk = {225, 228, 232},
    .deskEdge = {188, 193, 200},
    .button = {245, 246, 248},
};

const Colours DarkColours{
    .ink = {228, 231, 235},
    .mutedInk = {164, 171, 180},
    .placeholder = {150, 157, 167},
    .disabledInk = {104, 111, 121},
    .paper = {31, 35, 41},
    .lockedPaper = {38, 42, 49},
    .border = {74, 81, 91},
    .borderUnderMouse = {112, 121, 133},
    .accent = {104, 163, 255},
    .accentTint = {39, 55, 82},
    .rule = {56, 62, 70},
    .refusal = {255, 133, 133},
    .danger = {242, 112, 112},
    .plate = {48, 54, 62},
    .disabledPlate = {42, 46, 53},
    .band = {37, 42, 49},
    .desk = {22, 25, 30},
    .deskEdge = {60, 66, 75},
    .button = {37, 41, 48},
};

Look currentLook = Look::Light;
Colours shown = LightColours;

} // namespace

namespace look {
const QColor& Ink = shown.ink;
const QColor& MutedInk = shown.mutedInk;
const QColor& Placeholder = shown.placeholder;
const QColor& DisabledInk = shown.disabledInk;
const QColor& Paper = shown.paper;
const QColor& LockedPaper = shown.lockedPaper;
const QColor& Border = shown.border;
const QColor& BorderUnderMouse = shown.borderUnderMouse;
const QColor& Accent = shown.accent;
const QColor& AccentTint = shown.accentTint;
const QColor& Rule = shown.rule;
const QColor& Refusal = shown.refusal;
const QColor& Danger = shown.danger;
const QColor& Plate = shown.plate;
const QColor& DisabledPlate = shown.disabledPlate;
const QColor& Band = shown.band;
const QColor& Desk = shown.desk;
const QColor& DeskEdge = shown.deskEdge;
} // namespace look

namespace {

// The system's colours that the forms name, by their number without the sign bit.
constexpr unsigned SystemMark = 0x80000000U;

QColor SystemColor(Colour colour)
{
    constexpr unsigned window = 0x05;
    constexpr unsigned buttonFace = 0x0F;
    switch (static_cast<unsigned>(colour) & ~SystemMark) {
    case window: return look::Paper;
    case buttonFace: return currentLook == Look::Dark ? look::Plate : QColor(240, 240, 240);
    default: return look::Ink;
    }
}

double LinearPart(double part)
{
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

// Buttons weigh colours against each other each time they are painted: the powers are taken once.
const std::array<double, 256>& LinearParts()
{
    static const std::array<double, 256> parts = [] {
        std::array<double, 256> made{};
        for (std::size_t value = 0; value < made.size(); ++value)
            made.at(value) = LinearPart(static_cast<double>(value) / 255.0);
        return made;
    }();
    return parts;
}

double Luminance(const QColor& color)
{
    const auto part = [](int value) { return LinearParts()[static_cast<std::size_t>(value)]; };
    return 0.2126 * part(color.red()) + 0.7152 * part(color.green()) + 0.0722 * part(color.blue());
}

QPalette PaletteOf(const Colours& colours)
{
    QPalette palette(colours.button, colours.paper);
    palette.setColor(QPalette::WindowText, colours.ink);
    palette.setColor(QPalette::Text, colours.ink);
    palette.setColor(QPalette::ButtonText, colours.ink);
    palette.setColor(QPalette::Base, colours.paper);
    palette.setColor(QPalette::AlternateBase, colours.lockedPaper);
    palette.setColor(QPalette::Highlight, colours.accent);
    palette.setColor(QPalette::HighlightedText, colours.paper);
    palette.setColor(QPalette::PlaceholderText, colours.placeholder);
    palette.setColor(QPalette::Link, colours.accent);
    palette.setColor(QPalette::ToolTipBase, LightColours.ink);
    palette.setColor(QPalette::ToolTipText, LightColours.paper);
    for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, colours.disabledInk);
    return palette;
}

// Greys and tints are told from colours that mean something by how far their parts lie apart.
int SpreadOf(const QColor& color)
{
    const auto [low, high] = std::minmax({color.red(), color.green(), color.blue()});
    return high - low;
}

bool IsColourful(const QColor& color)
{
    constexpr int leastSpread = 60;
    return SpreadOf(color) >= leastSpread;
}

QColor WithLightness(const QColor& color, float lightness)
{
    return QColor::fromHslF(std::max(0.0F, color.hslHueF()), color.hslSaturationF(),
                            std::clamp(lightness, 0.0F, 1.0F));
}

// White becomes the dark paper, and what was darker than its neighbour stands out from it as before.
QColor DarkGround(const QColor& color)
{
    constexpr float lightest = 0.42F;
    constexpr float paper = 0.141F;
    constexpr float step = 0.6F;
    if (IsColourful(color))
        return WithLightness(color, std::min(color.lightnessF(), lightest));
    // A grey goes with the paper's own tint.
    constexpr int mostSpreadOfGrey = 4;
    const QColor& hue = SpreadOf(color) <= mostSpreadOfGrey ? look::Paper : color;
    const QColor dark = WithLightness(hue, paper + (1.0F - color.lightnessF()) * step);
    return color == Qt::white ? look::Paper : dark;
}

QColor DarkInk(const QColor& color, const QColor& ground)
{
    constexpr float step = 0.02F;
    if (Contrast(color, ground) >= LeastTextContrast)
        return color;
    QColor ink = IsColourful(color) ? color : WithLightness(color, 0.92F - color.lightnessF() / 2);
    while (Contrast(ink, ground) < LeastTextContrast && ink.lightnessF() + step < 1.0F)
        ink = WithLightness(ink, ink.lightnessF() + step);
    const bool isReadable = Contrast(ink, ground) >= LeastTextContrast;
    return isReadable || Contrast(Qt::white, ground) > Contrast(Qt::black, ground) ? ink : QColor(Qt::black);
}

} // namespace

int Pixels(Twips length)
{
    // No widget is larger than that.
    constexpr double FarthestPixel = 16777215;
    const double pixel = std::floor(static_cast<double>(length) / TwipsOfPixel + 0.5);
    return toolkit::WholeNumber<int>(std::clamp(pixel, -FarthestPixel, FarthestPixel));
}

Twips ToTwips(double pixels) { return static_cast<Twips>(pixels * TwipsOfPixel); }

QRect PixelRect(Twips left, Twips top, Twips width, Twips height)
{
    const int x = Pixels(left);
    const int y = Pixels(top);
    return QRect(x, y, Pixels(left + width) - x, Pixels(top + height) - y);
}

QString Lines(const Text& text)
{
    QString lines = FromText(text);
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return lines;
}

QColor ToColor(Colour colour, const QColor& fallback)
{
    if (colour == -1)
        return fallback;
    if (colour < 0)
        return SystemColor(colour);
    return QColor(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
}

QColor GroundColor(Colour colour, const QColor& fallback)
{
    const QColor color = ToColor(colour, fallback);
    return colour < 0 || currentLook == Look::Light ? color : DarkGround(color);
}

QColor InkColor(Colour colour, const QColor& fallback, const QColor& ground)
{
    const QColor color = ToColor(colour, fallback);
    return currentLook == Look::Light ? color : DarkInk(color, ground);
}

// Kept, because a font finds its glyphs anew each time it is made: labels are measured in dozens when the
// mouse moves.
QFont MakeFont(const Text& family, double points, bool bold)
{
    constexpr double LargestFont = 16384;
    static std::map<std::tuple<Text, double, bool>, QFont> made;
    const auto [place, isNew] = made.try_emplace({family, points, bold});
    QFont& font = place->second;
    if (isNew) {
        font.setFamilies({FromText(family), QStringLiteral("Liberation Sans")});
        font.setPixelSize(
            toolkit::WholeNumber<int>(std::clamp(std::round(points * 96.0 / 72.0), 1.0, LargestFont)));
        font.setBold(bold);
    }
    return font;
}

double Contrast(const QColor& a, const QColor& b)
{
    const auto [low, high] = std::minmax({Luminance(a), Luminance(b)});
    return (high + 0.05) / (low + 0.05);
}

Look LookOfDesktop(const QApplication& application)
{
    const QPalette palette = application.palette();
    const double ground = Luminance(palette.color(QPalette::Window));
    return ground < Luminance(palette.color(QPalette::WindowText)) ? Look::Dark : Look::Light;
}

Look CurrentLook() { return currentLook; }

void CurrentLook(Look look)
{
    currentLook = look;
    shown = look == Look::Dark ? DarkColours : LightColours;
}

QPalette CurrentPalette() { return PaletteOf(shown); }

} // namespace kova::qt
