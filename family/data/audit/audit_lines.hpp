#pragma once

#include "family/data/rows/rows.hpp"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kova::family {

class Database;

/// Values of a row by their columns, numbers in digits; nothing is Null.
using AuditedColumns = std::map<std::string, std::optional<std::string>, std::less<>>;

/// One line of the audit. Its texts are well-formed, also where a file holds other bytes.
struct AuditLine {
    /// "yyyy-mm-dd hh:mm:ss"
    std::string moment;
    /// "CODE - NAME"
    std::string user;
    /// Name of the computer; empty where it was not known.
    std::string desk;
    /// One of audit_operation.
    std::string operation;
    /// Of a change the columns that differ; else all that are not empty: `before` has none for a new or
    /// restored row, `after` for one that is gone.
    AuditedColumns before, after;
    /// Orders the lines as they were written.
    Key code = 0;
};

/// The columns in a line's `antes` or `depois`; none where it is Null. Fails with a DatabaseFailure where it
/// does not hold what the audit writes.
AuditedColumns ReadAuditedColumns(const Nullable<std::string>& written);

/// The lines of one row, newest first, `most` at most. Fails as Database::With, and where a line does not
/// hold what the audit writes.
std::vector<AuditLine> FindAuditLines(Database& database, const char* table, Key key, Key most);

/// All lines of one row, newest first: the shop's and those of its archive, where there is one. Fails alike.
std::vector<AuditLine> FindAllAuditLines(Database& database, Database* archive, const char* table, Key key);

} // namespace kova::family
