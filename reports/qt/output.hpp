#pragma once

#include "reports/pages.hpp"

#include <QString>

#include <optional>

class QPrinter;

namespace kova::paper {

/// Writes a document as PDF in its paper's size, with texts that can be selected, fonts inside and its title.
/// Answers "" or, in Portuguese, what kept it from being written; an older file of that name stays as it was
/// then. The file is for this user alone.
QString WritePdf(const reports::Document& document, const QString& path);

/// Gives a printer the paper and the title of a document, before its dialog is shown.
void Prepare(QPrinter& printer, const reports::Document& document);

/// How a document is printed, and what is said where it cannot be.
struct Printing {
    /// The page (from 0) that "current page" means; none where nobody can ask for it.
    std::optional<std::size_t> currentPage;
    /// The printer does not answer any more.
    QString printerGone;
    /// The paper chosen is another than the document's. Where this is empty, a smaller sheet takes the pages
    /// scaled down evenly; else nothing is printed then, and nothing is ever scaled.
    QString otherPaper;
};

/// Prints the pages that the printer was told to print. Answers "" or what `printing` says of the trouble.
QString Print(QPrinter& printer, const reports::Document& document, const Printing& printing);

} // namespace kova::paper
