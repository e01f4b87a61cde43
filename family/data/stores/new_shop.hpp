#pragma once

#include <string>

namespace kova::family {

struct NewShop {
    /// Trade name of the company; "" leaves it for later.
    std::string company;
    /// Name of the first user.
    std::string user;
    /// Name of the first employee: the agenda opens only where there is one.
    std::string employee;
};

/// Makes the database of a shop that has not begun yet: its company, user and employee, the service types
/// that the rules know, the commonest species, and the national holidays. Fails as CreateDatabase.
void CreateNewShop(const std::string& source, const NewShop& shop);

} // namespace kova::family
