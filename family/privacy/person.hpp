#pragma once

#include "family/data/engine/key.hpp"
#include "family/data/stores/appointment_rows.hpp"
#include "family/privacy/identity.hpp"

#include <functional>
#include <optional>
#include <set>

namespace kova::family {
class Database;
}

/// What a shop holds about one of its customers, wherever it lies.
namespace kova::family::privacy {

/// A customer, as far as what is his has to be told from what is others'.
struct Person {
    Key code = 0;
    /// The same and those of customers who have become one with this one.
    std::set<Key> codes;
    Identity identity;

    bool operator==(const Person&) const = default;
};

/// By the rows and by the values that the audit keeps of them; also a customer whose row was removed, as long
/// as the audit tells of it, the archive included where there is one. Nothing where no customer ever had that
/// code. Fails as FindAuditLines.
std::optional<Person> FindPerson(Database& database, Key code, Database* archive = nullptr);

/// An appointment of a registered customer.
struct AppointmentOfCustomer : AppointmentRow {
    static constexpr const char* FoundBy = "codigo_do_cliente";
};

/// The appointments of a customer by their numbers. Fails as Database::With.
std::vector<AppointmentRow> AppointmentsOf(Database& database, Key customer);

/// Goes through the appointments without a registered customer, and visits those that something speaks for.
/// Fails as Database::With.
void FindLikelyAppointments(Database& database, const Identity& identity,
                            const std::function<void(const AppointmentRow&, Likeness)>& visit);

} // namespace kova::family::privacy
