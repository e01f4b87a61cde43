#pragma once

#include "agenda/contracts/platform.hpp"
#include "reports/pages.hpp"

#include <QString>

class QPrinter;
class QWidget;

namespace kova::qt {

/// What a preview asks of the desktop: files, printers, messages.
class ReportDesk {
public:
    virtual ~ReportDesk() = default;

    /// Where to save; "" where the user has thought better of it. The user has agreed to overwrite.
    virtual QString AskPdfPath(QWidget* over, const QString& proposal);
    virtual bool HasPrinter() const;
    /// Lets the user choose printer, pages and copies; false where the user has thought better of it.
    virtual bool ChoosePrinting(QWidget* over, QPrinter& printer, std::size_t pages);
    virtual void Tell(QWidget* over, MessageKind kind, const QString& text, const QString& title);
};

} // namespace kova::qt
