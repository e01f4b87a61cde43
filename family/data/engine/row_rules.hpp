#pragma once

#include <span>
#include <string>
#include <vector>

namespace kova::family {

/// What no row of a table may be.
struct RowRule {
    const char* name;
    /// Holds for the rows that break it; each name of a column has an "@" before it.
    const char* broken;
    /// Portuguese; what is wrong then.
    const char* text;
};

struct TableRules {
    const char* table;
    /// The columns that the rules read, separated by commas.
    const char* columns;
    std::span<const RowRule> rules;
};

/// The condition of a rule with `before` in the place of each "@".
std::string BrokenRows(const RowRule& rule, const std::string& before = {});

/// What the dialects make of them; see there. A table that exists gets no constraint from a file engine, but
/// triggers, one before insertions and one before alterations.
std::vector<std::string> HoldByTriggers(const TableRules& rules);
std::vector<std::string> DropTriggers(const TableRules& rules);
std::string ConfirmNothing(const TableRules& rules, const RowRule& rule);

/// A server gets a constraint for each rule, which at first is not held against the rows that are there.
std::vector<std::string> HoldByConstraints(const TableRules& rules);
std::vector<std::string> DropConstraints(const TableRules& rules);
std::string ConfirmConstraint(const TableRules& rules, const RowRule& rule);

} // namespace kova::family
