#pragma once

#include "agenda/contracts/platform.hpp"

#include <QString>

class QPrinter;
class QWidget;

namespace kova::family {

/// What the label window asks of the desktop: files, printers, messages.
class LabelDesk {
public:
    /// `toolkit` shows the messages, under `title`; it must outlive the desk.
    LabelDesk(Toolkit& toolkit, Text title) : toolkit_(toolkit), title_(std::move(title)) { }
    virtual ~LabelDesk() = default;

    /// Where to save; "" where the user has thought better of it. The user has agreed to overwrite.
    virtual QString AskPdfPath(QWidget* over, const QString& proposal);
    virtual bool HasPrinter() const;
    /// Lets the user choose the printer; false where the user has thought better of it.
    virtual bool ChoosePrinter(QWidget* over, QPrinter& printer, int sheets);
    void Tell(MessageKind kind, const QString& text);
    /// A question whose default is No.
    bool Ask(const QString& text);

private:
    Toolkit& toolkit_;
    Text title_;
};

} // namespace kova::family
