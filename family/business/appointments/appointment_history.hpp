#pragma once

#include "family/data/audit/audit_lines.hpp"

#include <string>
#include <vector>

namespace kova::family {

class Database;

/// A field that a write has changed, for people; empty where nothing was there.
struct FieldHistory {
    /// As the record forms call it.
    std::string caption;
    std::string before, after;
};

/// One write of an appointment, for people.
struct HistoryLine {
    /// "dd/mm/yyyy hh:mm:ss"
    std::string moment;
    /// "CODE - NAME"
    std::string user;
    /// Name of the computer; empty where it was not known.
    std::string desk;
    /// "Inclusão", "Alteração", "Exclusão" or "Restauração".
    std::string operation;
    std::vector<FieldHistory> fields;
};

/// The fields in which a row was another one before than after, in the order of the record forms. Codes come
/// with the names that the registers have today. Fails as Database::With.
std::vector<FieldHistory> ChangedFieldsOf(Database& database, const AuditedColumns& before,
                                          const AuditedColumns& after);

/// Everything that the audit tells of an appointment, also of one that is gone, oldest first. Empty where it
/// tells nothing. Codes come with the names that the registers have today. The shop's archive (
/// family/data/archive/), where there is one, tells of what lies further back. Fails with a DatabaseFailure.
std::vector<HistoryLine> HistoryOf(Database& database, Key number, Database* archive = nullptr);

} // namespace kova::family
