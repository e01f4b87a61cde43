#include "family/presentation/labels/label_sheet.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace kova::family {

namespace {

constexpr std::array Sheets{
    LabelSheet{"A4-2x7", LabelPaper::A4, 2, 7, 99.1, 38.1, 101.6},
    LabelSheet{"A4-2x8", LabelPaper::A4, 2, 8, 99.1, 33.9, 101.6},
    LabelSheet{"A4-3x7", LabelPaper::A4, 3, 7, 63.5, 38.1, 66.0},
    LabelSheet{"A4-3x11", LabelPaper::A4, 3, 11, 63.5, 25.4, 66.0},
    LabelSheet{"carta-2x5", LabelPaper::Letter, 2, 5, 101.6, 50.8, 106.3625},
    LabelSheet{"carta-2x10", LabelPaper::Letter, 2, 10, 101.6, 25.4, 106.3625},
    LabelSheet{"carta-3x10", LabelPaper::Letter, 3, 10, 66.675, 25.4, 69.85},
};

/// Millimetres.
struct PaperSize {
    double width;
    double height;
};

PaperSize SizeOf(LabelPaper paper)
{
    return paper == LabelPaper::A4 ? PaperSize{210, 297} : PaperSize{215.9, 279.4};
}

Twips ToTwips(double millimetres) { return static_cast<Twips>(millimetres * TwipsOfMillimetre); }

/// "38,1": a comma, and one digit behind it.
Text Shown(double millimetres)
{
    const long tenths = std::lround(millimetres * 10);
    return std::to_string(tenths / 10) + "," + std::to_string(tenths % 10);
}

} // namespace

std::span<const LabelSheet> LabelSheets() { return Sheets; }

const LabelSheet& LabelSheetOf(std::string_view key)
{
    const auto found =
        std::ranges::find_if(Sheets, [&](const LabelSheet& sheet) { return sheet.key == key; });
    return found == Sheets.end() ? Sheets.front() : *found;
}

Text NameOf(const LabelSheet& sheet)
{
    const Text paper = sheet.paper == LabelPaper::A4 ? "A4" : "Carta";
    return paper + " com " + std::to_string(sheet.Labels()) + " etiquetas de " + Shown(sheet.width) + " x "
        + Shown(sheet.height) + " mm";
}

Twips PaperWidthOf(const LabelSheet& sheet) { return ToTwips(SizeOf(sheet.paper).width); }

Twips PaperHeightOf(const LabelSheet& sheet) { return ToTwips(SizeOf(sheet.paper).height); }

reports::Box BoxOfLabel(const LabelSheet& sheet, int position)
{
    const PaperSize paper = SizeOf(sheet.paper);
    const double left = (paper.width - (sheet.columns - 1) * sheet.columnStep - sheet.width) / 2;
    const double top = (paper.height - sheet.rows * sheet.height) / 2;
    return {ToTwips(left + position % sheet.columns * sheet.columnStep),
            ToTwips(top + position / sheet.columns * sheet.height), ToTwips(sheet.width),
            ToTwips(sheet.height)};
}

LabelPlace PlaceOfCopy(const LabelSheet& sheet, int first, int copy)
{
    const int place = first + copy;
    return {place / sheet.Labels(), place % sheet.Labels()};
}

int SheetsNeeded(const LabelSheet& sheet, int first, int copies)
{
    return PlaceOfCopy(sheet, first, std::max(copies, 1) - 1).sheet + 1;
}

} // namespace kova::family
