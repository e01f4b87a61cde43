#pragma once

#include "family/data/engine/database.hpp"
#include "family/data/rows/rows.hpp"
#include "family/demo/random.hpp"

#include <vector>

namespace kova::family {

/// What an employee of the fictional shop does.
enum class Trade { Veterinarian, Groomer, Trainer };

/// The trade that gives services of a type.
Trade TradeOf(Key serviceType);

struct ShopEmployee {
    EmployeeRow row;
    Trade trade;
};

/// The small registers of the fictional shop, as they stand in its database.
struct ShopRegisters {
    std::vector<ServiceRow> services;
    std::vector<ShopEmployee> employees;
    std::vector<SpeciesRow> species;
    std::vector<BreedRow> breeds;
};

/// Writes company, users, service types, services, employees, species and breeds.
ShopRegisters WriteRegisters(Database& database, int employees, Random& random);

} // namespace kova::family
