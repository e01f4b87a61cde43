#include "family/data/engine/row_rules.hpp"

namespace kova::family {

namespace {

std::string TriggerName(const TableRules& rules, const std::string& event)
{
    return std::string("regras_de_") + rules.table + "_na_" + event;
}

/// The first rule that a row breaks refuses it by its text.
std::string Trigger(const TableRules& rules, const std::string& name, const std::string& event)
{
    std::string any, first;
    for (const RowRule& rule : rules.rules) {
        const std::string broken = "(" + BrokenRows(rule, "new.") + ")";
        any += (any.empty() ? "" : " or ") + broken;
        first += " when " + broken + " then raise(abort, '" + rules.table + ": " + rule.text + "')";
    }
    return "create trigger " + TriggerName(rules, name) + " before " + event + " on " + rules.table + " when "
        + any + " begin select case" + first + " end; end";
}

std::string ConstraintName(const TableRules& rules, const RowRule& rule)
{
    return std::string("regra_de_") + rules.table + "_" + rule.name;
}

std::string Alter(const TableRules& rules) { return std::string("alter table ") + rules.table; }

} // namespace

std::string BrokenRows(const RowRule& rule, const std::string& before)
{
    std::string condition = rule.broken;
    for (std::size_t at = condition.find('@'); at != std::string::npos; at = condition.find('@', at))
        condition.replace(at, 1, before);
    return condition;
}

std::vector<std::string> HoldByTriggers(const TableRules& rules)
{
    return {Trigger(rules, "inclusao", "insert"),
            Trigger(rules, "alteracao", std::string("update of ") + rules.columns)};
}

std::vector<std::string> DropTriggers(const TableRules& rules)
{
    return {"drop trigger if exists " + TriggerName(rules, "inclusao"),
            "drop trigger if exists " + TriggerName(rules, "alteracao")};
}

std::string ConfirmNothing(const TableRules&, const RowRule&) { return {}; }

std::vector<std::string> HoldByConstraints(const TableRules& rules)
{
    std::vector<std::string> statements;
    for (const RowRule& rule : rules.rules)
        statements.push_back(Alter(rules) + " add constraint " + ConstraintName(rules, rule) + " check (not ("
                             + BrokenRows(rule) + ")) not valid");
    return statements;
}

std::vector<std::string> DropConstraints(const TableRules& rules)
{
    std::vector<std::string> statements;
    for (const RowRule& rule : rules.rules)
        statements.push_back(Alter(rules) + " drop constraint if exists " + ConstraintName(rules, rule));
    return statements;
}

std::string ConfirmConstraint(const TableRules& rules, const RowRule& rule)
{
    return Alter(rules) + " validate constraint " + ConstraintName(rules, rule);
}

} // namespace kova::family
