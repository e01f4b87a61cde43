#pragma once

#include "family/data/audit/audit_lines.hpp"

#include <functional>

namespace kova::family {

/// What the audit tells of an import.
struct ImportLine {
    Key number = 0;
    /// Who, when and at which computer; and the line's code, behind which those of its rows are.
    AuditLine line;
    /// The name of the register, the file as it was asked for, and the name of its encoding.
    std::string registerName, path, encoding;
    /// Lines with a record; those that brought a new one and those that changed one, where it is told.
    long long records = 0;
    std::optional<long long> added, changed;
    /// Who took it back, and when; nothing where nobody has.
    std::optional<AuditLine> undone;
};

/// All imports, newest first. Fails with a DatabaseFailure.
std::vector<ImportLine> FindImports(Database& database);

/// What an import has written of one row.
struct ImportedRow {
    std::string table;
    Key key = 0;
    /// Whether the import has brought it; `before` is empty then.
    bool isNew = false;
    AuditedColumns before;
    AuditedColumns after;
    /// The code of its line.
    Key line = 0;
};

/// Goes through what an import has written, the last first, a page at a time. `visit` may write. Fails with a
/// DatabaseFailure.
void ForEachRowOf(const ImportLine& of, Database& database,
                  const std::function<void(const ImportedRow& row)>& visit);

} // namespace kova::family
