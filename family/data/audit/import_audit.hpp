#pragma once

#include "family/data/audit/audit.hpp"

namespace kova::family {

/// A file on its way into the database.
struct ImportedFile {
    /// As it was asked for.
    std::string path;
    std::string encoding;
    /// The name of the register that it goes into.
    std::string registerName;
    /// Its lines with a record; those of them that bring a new one, and those that change a stored one.
    long long records = 0, added = 0, changed = 0;
};

/// Waits until no other import is writing; from then on, until the end of the transaction that is open, none
/// does. Fails with a DatabaseFailure.
void LockImports(Database& database);

/// Gives the import its number, in author.importNumber, and writes its line in the audit: who, when, at which
/// computer and which file. The lines of the rows that the author writes from then on bear the number. For a
/// transaction that has locked imports. Fails with a DatabaseFailure.
void BeginImport(Database& database, Author& author, const ImportedFile& file);

} // namespace kova::family
