#pragma once

#include "agenda/contracts/date_time.hpp"
#include "reports/qt/output.hpp"
#include "reports/qt/paper_desk.hpp"

namespace kova::paper {

/// What a window's line of status says of a document that has left it; nothing where it has not.
struct Delivered {
    QString text;
    QString toolTip;
};

/// Lets the user choose a printer and prints. Trouble, and that there is no printer, is told by the desk.
Delivered PrintFrom(QWidget& over, PaperDesk& desk, const reports::Document& document,
                    const Printing& printing);

/// Lets the user choose a file and writes it. The name that is proposed carries the document's title and the
/// day, the folder is the one of the last file, or the user's documents. Trouble is told by the desk.
Delivered SaveFrom(QWidget& over, PaperDesk& desk, const reports::Document& document, Date day);

/// A name for a document's file, such as "Agendamentos 2026-11-20.pdf", without what files may not be called.
QString FileNameOf(const QString& title, Date day);

} // namespace kova::paper
