#pragma once

#include "tests/unit/family/business/appointments/two_desk_fixture.hpp"

namespace kova::family::test {

/// How the engine runs a statement, in its own words.
struct StatementPlan {
    std::string statement, plan;
};

/// The plans of all statements that a connection keeps prepared, as they are whatever the parameters.
std::vector<StatementPlan> PlansOf(Database& database);
/// The plans that a server makes for parameters like those of a day at the desk; a file's engine knows the
/// plans of PlansOf only.
std::vector<StatementPlan> PlansForValues(Database& database);

/// Whether a plan walks through the whole of a table that grows with the years.
bool ReadsWholeTable(const std::string& plan);

/// The plan of the statement that contains that text; one of a whole table where there is none.
std::string PlanWith(const std::string& text, const std::vector<StatementPlan>& plans);

/// The shop with two desks, grown big.
class BigShopTest : public TwoDesksTest {
protected:
    static constexpr int NewAppointments = 10'000, NewCustomers = 20'000;

    /// More appointments of so many employees, on 2,520 days around the shop's; one in a hundred ends on a
    /// later day than it begins.
    void AddAppointments(int employees);
    /// More customers with an animal each, and packages, pre-sales and lines of the audit.
    void AddTheRest();
    /// Has the engine count what is there.
    void Analyse() { Run("analyze"); }
    /// The same as little as the closing of a file does; on a server there is no such thing.
    void AnalyseALittle();
    /// Gives a file's engine counts like those of so many appointments, and for the index of those of several
    /// days what is told so: "ALL EACH ...", or "" for none.
    void ActAsIfThereWere(long long appointments, int employees, const std::string& ofSeveralDays);
    /// As before anything was counted; on a server there is no such thing.
    void ForgetWhatWasCounted();

    Database& Data();
};

} // namespace kova::family::test
