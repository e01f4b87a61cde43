#pragma once

#include "reports/pages.hpp"

#include <span>
#include <string_view>

namespace kova::family {

enum class LabelPaper { A4, Letter };

/// A sheet of self-adhesive labels, which stand in the middle of the paper. Lengths are millimetres.
struct LabelSheet {
    /// Under which the settings remember it.
    const char* key;
    LabelPaper paper;
    int columns;
    int rows;
    double width;
    double height;
    /// From one column to the next, with the gap between the labels. Rows follow each other without one.
    double columnStep;

    int Labels() const { return columns * rows; }
};

/// The sheets that shops sell, A4 first.
std::span<const LabelSheet> LabelSheets();
/// The sheet of that key; the first where there is none.
const LabelSheet& LabelSheetOf(std::string_view key);
/// Paper, number and size of the labels, for the user.
Text NameOf(const LabelSheet& sheet);

inline constexpr double TwipsOfMillimetre = 1440.0 / 25.4;

/// Of the paper, in twips.
Twips PaperWidthOf(const LabelSheet& sheet);
Twips PaperHeightOf(const LabelSheet& sheet);
/// Where a label stands on the paper. Positions count from 0, row by row.
reports::Box BoxOfLabel(const LabelSheet& sheet, int position);

/// A place for one copy: sheet and position, both from 0.
struct LabelPlace {
    int sheet = 0;
    int position = 0;

    friend bool operator==(const LabelPlace&, const LabelPlace&) = default;
};

/// Where a copy (from 0) goes when the first one goes to position `first` of the first sheet.
LabelPlace PlaceOfCopy(const LabelSheet& sheet, int first, int copy);
/// How many sheets the copies need, at least one.
int SheetsNeeded(const LabelSheet& sheet, int first, int copies);

} // namespace kova::family
