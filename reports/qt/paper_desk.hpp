#pragma once

#include "agenda/contracts/platform.hpp"

#include <QString>

class QPrinter;
class QWidget;

namespace kova::reports {
struct Document;
}

namespace kova::paper {

/// What a window that prints asks of the desktop: files, printers, messages.
class PaperDesk {
public:
    virtual ~PaperDesk() = default;

    /// Where to save; "" where the user has thought better of it. The user has agreed to overwrite.
    virtual QString AskPdfPath(QWidget* over, const QString& proposal);
    virtual bool HasPrinter() const;
    /// Lets the user choose printer, pages and copies; false where the user has thought better of it.
    /// `hasCurrentPage` offers to print the one page in view.
    virtual bool ChoosePrinter(QWidget* over, QPrinter& printer, std::size_t pages, bool hasCurrentPage);
    virtual void Tell(QWidget* over, MessageKind kind, const QString& text) = 0;
    /// A document has gone to a printer, or into that file where one is named.
    virtual void Gone(QWidget* over, const reports::Document& document, const QString& file);
};

} // namespace kova::paper
