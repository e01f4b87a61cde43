#pragma once

#include "reports/pages.hpp"

#include <QString>

#include <functional>

class QPrinter;

namespace kova::qt {

/// Writes a report as PDF, with its texts selectable, its fonts inside and its title. Answers "" or, in
/// Portuguese, what kept it from being written; an older file of that name stays as it was then.
QString WritePdf(const reports::Document& document, const QString& path);

/// Gives a printer the paper and the title of a report, before its dialog is shown.
void PrepareForReport(QPrinter& printer, const reports::Document& document);

/// Prints the pages that the printer was told to print; `currentPage` (from 0) is the one that "current
/// page" means. A sheet smaller than the report's takes it scaled down evenly. Answers "" or, in
/// Portuguese, what went wrong.
QString Print(QPrinter& printer, const reports::Document& document, std::size_t currentPage);

} // namespace kova::qt
