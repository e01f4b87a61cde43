#pragma once

#include "family/data/audit/author.hpp"
#include "family/data/engine/long_work.hpp"

#include <optional>
#include <string>
#include <vector>

namespace kova::family::privacy {

/// Who is made anonymous.
struct AnonymiseRequest {
    Key code = 0;
    /// Whether appointments without a registered customer for which the name alone speaks are his too; where
    /// there are some it has to be decided.
    std::optional<bool> sameName{};
    /// The archive of the shop's audit, where it is not where the shop says.
    std::optional<std::string> archive{};
};

struct AnonymiseAnswer {
    enum class Outcome {
        Done,
        /// Nothing was written; `text` says why and what to do.
        Refused,
        /// No customer ever had that code, or the customer is one with another now.
        Gone,
    };

    bool IsDone() const { return outcome == Outcome::Done; }

    Outcome outcome = Outcome::Done;
    std::string text{};
    /// What was changed, or would be; of the appointments all that are his, also those that tell nothing
    /// about him.
    long long channels = 0, animals = 0, appointments = 0, waiting = 0, auditLines = 0;
    /// Appointments for which the name alone speaks, where nothing was decided about them.
    std::vector<Key> undecided{};
    /// Why former values stay in the database's file for now; else empty.
    std::string remains{};
    /// Files beside the database that hold the former values.
    std::vector<std::string> copies{};
};

/// What Anonymise would answer at that moment; writes nothing. Fails with a DatabaseFailure.
AnonymiseAnswer PlanToAnonymise(const std::string& source, const AnonymiseRequest& request,
                                const std::string& moment, const LongWork& work);

/// Takes from every table of the shop at `source`, the audit included, what tells who a customer is, in one
/// transaction: names become nobody's, texts are emptied, contact channels go, the customer becomes deleted
/// and its animals inactive, and what it waits for is given up. Appointments, dates, services, employees and
/// values stay. Refused where booked appointments are still to come or pre-sales are open, and on a server to
/// whoever may not change the audit. A line of the audit tells who did it, when, whose code it was, and which
/// lines were cleaned. The lines of the shop's archive are cleaned as well; where it is not found, `remains`
/// says so. Afterwards what the engine has kept of the former values is taken away. Fails with a
/// DatabaseFailure, and with RightDenied where the author may not; nothing is written then.
AnonymiseAnswer Anonymise(const std::string& source, const AnonymiseRequest& request, const Author& author,
                          const LongWork& work);

} // namespace kova::family::privacy
