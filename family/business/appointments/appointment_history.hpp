#pragma once

#include "family/data/rows/rows.hpp"

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

/// Everything that the audit tells of an appointment, also of one that is gone, oldest first. Empty where it
/// tells nothing. Codes come with the names that the registers have today. The shop's archive (
/// family/data/archive/), where there is one, tells of what lies further back. Fails with a DatabaseFailure.
std::vector<HistoryLine> HistoryOf(Database& database, Key number, Database* archive = nullptr);

} // namespace kova::family
