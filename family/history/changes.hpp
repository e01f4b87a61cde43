#pragma once

#include "family/data/audit/author.hpp"
#include "family/history/line.hpp"

namespace kova::family {
class Database;
}

namespace kova::family::history {

/// A field of a row before and after, for people; empty where nothing was there.
struct Change {
    /// As the form calls it.
    std::string caption;
    std::string before, after;

    bool operator==(const Change&) const = default;
};

/// What stands in the place of an amount that the author may not see.
inline constexpr const char* HiddenAmount = "(oculto)";

/// What a line tells, in the order of the form: the fields that are others than before, those of a new row or
/// of one that is gone where they hold something. Codes come with the names that the registers have today.
/// Amounts are hidden from an author who may not see prices. Fails as Database::With.
std::vector<Change> ChangesOf(Database& database, const Author& author, const Line& line);

/// What somebody did, as a sentence without its end: "Cancelou o agendamento 24".
std::string ActOf(const Line& line);

/// The same behind a name in a question: "o agendamento 24".
std::string RowOf(const Line& line);

/// The columns that are others after a line than before, without those that follow from others or tell who
/// wrote the row.
std::vector<std::string> ChangedColumns(const AuditLine& line);

/// Those columns on one of the line's sides.
AuditedColumns ChangedPart(const AuditLine& line, const AuditedColumns& side);

/// What a line's fields were before, a sentence for each. Fails as ChangesOf.
std::string WhatComesBack(Database& database, const Author& author, const Line& line);

} // namespace kova::family::history
