#pragma once

#include "family/data/rows/people_rows.hpp"
#include "family/demo/registers.hpp"

#include <vector>

namespace kova::family {

/// What the appointments need to know of a fictional customer.
struct ShopCustomer {
    Key code = 0;
    int situation = 1;
    /// Codes of the animals, first to last; none of them inactive. Without one the last is below the first.
    Key firstAnimal = 0, lastAnimal = 0;

    bool HasAnimals() const { return firstAnimal <= lastAnimal; }
};

/// Writes that many fictional customers with their channels and animals.
std::vector<ShopCustomer> WriteCustomers(Database& database, const ShopRegisters& registers, int count,
                                         Random& random);

/// A made-up name and telephone, also for appointments without a registered customer.
std::string PersonName(Random& random);
std::string MobileNumber(Random& random);

} // namespace kova::family
