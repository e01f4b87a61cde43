#pragma once

#include <string>

namespace kova::family {

struct NewShop {
    /// Trade name of the company; "" leaves it for later.
    std::string company;
    /// Name of the first user.
    std::string user;
};

/// Makes the database of a shop that has not begun yet: its company and user, the service types that the
/// rules know, the commonest species, and the national holidays. Fails as CreateDatabase.
void CreateNewShop(const std::string& source, const NewShop& shop);

} // namespace kova::family
