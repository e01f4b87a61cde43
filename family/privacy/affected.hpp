#pragma once

#include "family/privacy/person.hpp"

#include <optional>
#include <string>
#include <vector>

namespace kova::family::privacy {

/// The appointments that are taken for a person's.
struct AffectedAppointments {
    /// By number: those of the registered customer, then the likely ones.
    std::vector<AppointmentRow> all;
    /// Numbers of those for which the name alone speaks and about which nothing was decided.
    std::vector<Key> undecided;
};

/// `sameName` decides about those for which the name alone speaks: whether they are his too. Fails as
/// Database::With.
AffectedAppointments FindAffected(Database& database, const Person& person, std::optional<bool> sameName);

/// Why the person cannot be made anonymous at that moment ("yyyy-mm-dd hh:mm:ss"), and what to do, in
/// sentences; empty where nothing speaks against it. Fails as Database::With.
std::string WhyNotNow(Database& database, const Person& person, const AffectedAppointments& affected,
                      const std::string& moment);

} // namespace kova::family::privacy
