#include "toolkits/qt/theme.hpp"

#include "toolkits/qt/flat_style.hpp"

#include <QApplication>
#include <QPalette>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <tuple>

namespace kova::qt {

namespace look {
const QColor Ink(38, 42, 48);
const QColor MutedInk(110, 116, 124);
const QColor Placeholder(128, 134, 142);
const QColor DisabledInk(160, 165, 172);
const QColor Paper(255, 255, 255);
const QColor LockedPaper(249, 249, 249);
const QColor Border(206, 210, 216);
const QColor BorderUnderMouse(160, 168, 178);
const QColor Accent(38, 110, 224);
const QColor AccentTint(232, 240, 254);
const QColor Rule(226, 229, 233);
const QColor Refusal(196, 32, 32);
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
    case buttonFace: return QColor(240, 240, 240);
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
            made[value] = LinearPart(static_cast<double>(value) / 255.0);
        return made;
    }();
    return parts;
}

double Luminance(const QColor& color)
{
    const auto part = [](int value) { return LinearParts()[static_cast<std::size_t>(value)]; };
    return 0.2126 * part(color.red()) + 0.7152 * part(color.green()) + 0.0722 * part(color.blue());
}

QPalette LightPalette()
{
    QPalette palette(QColor(245, 246, 248), look::Paper);
    palette.setColor(QPalette::WindowText, look::Ink);
    palette.setColor(QPalette::Text, look::Ink);
    palette.setColor(QPalette::ButtonText, look::Ink);
    palette.setColor(QPalette::Base, look::Paper);
    palette.setColor(QPalette::Highlight, look::Accent);
    palette.setColor(QPalette::HighlightedText, look::Paper);
    palette.setColor(QPalette::PlaceholderText, look::Placeholder);
    palette.setColor(QPalette::ToolTipBase, look::Ink);
    palette.setColor(QPalette::ToolTipText, look::Paper);
    for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, look::DisabledInk);
    return palette;
}

} // namespace

int Pixels(Twips length)
{
    return static_cast<int>(std::floor(static_cast<double>(length) / TwipsOfPixel + 0.5));
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

// Kept, because a font finds its glyphs anew each time it is made: labels are measured in dozens when the
// mouse moves.
QFont MakeFont(const Text& family, double points, bool bold)
{
    static std::map<std::tuple<Text, double, bool>, QFont> made;
    const auto [place, isNew] = made.try_emplace({family, points, bold});
    QFont& font = place->second;
    if (isNew) {
        font.setFamilies({FromText(family), QStringLiteral("Liberation Sans")});
        font.setPixelSize(std::max(1, static_cast<int>(std::lround(points * 96.0 / 72.0))));
        font.setBold(bold);
    }
    return font;
}

double Contrast(const QColor& a, const QColor& b)
{
    const auto [low, high] = std::minmax({Luminance(a), Luminance(b)});
    return (high + 0.05) / (low + 0.05);
}

void ApplyLook(QApplication& application)
{
    application.setStyle(new FlatStyle);
    application.setPalette(LightPalette());
    application.setFont(MakeFont("Arial", 9.75));
}

} // namespace kova::qt
