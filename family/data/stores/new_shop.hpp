#pragma once

#include "family/data/rows/rows.hpp"
#include "family/data/rows/work_rows.hpp"

#include <string>
#include <vector>

namespace kova::family {

struct NewShop {
    /// Only a trade name is needed. A company without one is left for later.
    CompanyRow company;
    /// Name of the first user.
    std::string user;
    /// What is to be kept of the first user's password and PIN, as Argon2id makes it; "" where there is none.
    /// Whoever has a password administers the shop; a shop without begins without users who sign in.
    std::string password{}, pin{};
    /// How the first employee is called; the agenda opens only where there is one.
    std::string employee;
    /// The employee's name; the former where it is "".
    std::string nameOfEmployee;
    /// Without their keys and folded names; their types are 1 to 4.
    std::vector<ServiceRow> services{};
    /// Without their keys. Where there are none the shop is open from Monday to Saturday at all hours.
    std::vector<OpeningHoursRow> openingHours{};
};

/// Makes the database of a shop that has not begun yet: its company, user and employee, the service types
/// that the rules know, the commonest species, and the national holidays. As any new database it is open from
/// Monday to Saturday at all hours. Fails as CreateDatabase.
void CreateNewShop(const std::string& source, const NewShop& shop);

} // namespace kova::family
