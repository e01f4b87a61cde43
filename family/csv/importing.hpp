#pragma once

#include "family/csv/import_run.hpp"
#include "family/csv/text_file.hpp"
#include "family/registers/import_undo.hpp"

namespace kova::family::csv {

/// A file that is to go into a register.
struct ImportOrder {
    const Register* into = nullptr;
    /// As it was asked for; the audit keeps it.
    std::string path;
    FileText file;
    char separator = ';';
    Known known = Known::Refused;
    /// A file of a shop is copied before anything is written.
    bool makesCopy = true;
};

/// Whether lines of the register may change stored rows.
bool TakesUpdates(const Register& into);

/// What a file brings, or has brought.
struct ImportReport {
    /// Whether nothing is wrong with the file.
    bool IsGood() const { return problems == 0; }
    /// Whether anything would stand otherwise in the database than before.
    bool Writes() const { return added + changed > 0; }

    /// Lines with a record in them; those that bring a new one, those that change a stored one, those that
    /// bring one as it is stored, and those that are left out because it is.
    long long records = 0, added = 0, changed = 0, same = 0, leftOut = 0;
    /// Things that are wrong, and lines with any.
    long long problems = 0, problemLines = 0;
    /// What the updates change, a line of text for each field.
    std::string changes{};
    /// The import in the audit; 0 where nothing was written.
    Key number = 0;
    /// The copy that was made; "" where none was.
    std::string copy{};
};

/// Tells what BringIn would do, to whoever may have it done. Reads only, and waits for nobody. Fails with a
/// DatabaseFailure, and with RightDenied as BringIn.
ImportReport RehearseImport(const std::string& source, const ImportOrder& order, const Author& author,
                            DateTime now, const ImportWatch& watch);

/// Brings a file into the shop at `source`: all of it, or nothing where any line is wrong. It is checked
/// while others go on writing; then, where it would change anything, the shop's file is copied beside itself,
/// and what others may have written meanwhile is looked at again before it is written, in one transaction
/// that tells who, when and what in the audit. Fails with a DatabaseFailure, and with RightDenied where the
/// author may not write such rows, or not their prices; nothing is written then.
ImportReport BringIn(const std::string& source, const ImportOrder& order, const Author& author, DateTime now,
                     const ImportWatch& watch);

/// Takes an import of the shop at `source` back; see UndoImport.
registers::UndoneImport TakeBack(const std::string& source, std::optional<Key> number,
                                 registers::ChangedRows changed, const Author& author, const LongWork& work);

} // namespace kova::family::csv
