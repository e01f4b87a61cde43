#pragma once

#include "family/presentation/labels/label_sheet.hpp"

#include <QString>

class QPrinter;

namespace kova::family {

/// Labels on their way out: the pages, and the sheets that they are for.
struct LabelJob {
    const LabelSheet* sheet = nullptr;
    reports::Document pages = {};
};

/// Writes the sheets as PDF in their own size, with texts that can be selected, fonts and title. Answers ""
/// or, in Portuguese, what kept it from being written; an older file of that name stays as it was then.
QString WriteLabelPdf(const LabelJob& job, const QString& path);

/// Gives a printer the paper and the title of the sheets, before its dialog is shown.
void PrepareForLabels(QPrinter& printer, const LabelJob& job);

/// Prints the sheets that the printer was told to print, in their own size: labels are never scaled.
/// Answers "" or, in Portuguese, what went wrong; nothing is printed where the paper chosen is another.
QString PrintLabels(QPrinter& printer, const LabelJob& job);

} // namespace kova::family
