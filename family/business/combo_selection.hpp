#pragma once

#include "agenda/contracts/support/paged_record_set.hpp"
#include "family/data/engine/database.hpp"

#include <vector>

namespace kova::family {

/// A row of a combo box: what it shows and the key behind it.
struct ComboRow {
    std::string text;
    long long key = 0;
};

/// The active rows by the name that is shown, then key. `key` 0 is all, another only that one.
std::vector<ComboRow> SelectServiceTypes(Database& database, long long key);
std::vector<ComboRow> SelectEmployees(Database& database, long long key);
std::vector<ComboRow> SelectSpecies(Database& database, long long key);
/// Those of one species.
std::vector<ComboRow> SelectBreeds(Database& database, long long species, long long key);
/// A customer's animals of one situation, 1 active or 2 inactive; of both where it is 0.
std::vector<ComboRow> SelectAnimalsOfCustomer(Database& database, long long customer, int situation);

/// The rows under the two field names, the key as a Long.
RecordSetRef ComboRecordSet(const char* textField, const char* keyField, const std::vector<ComboRow>& rows);

} // namespace kova::family
