#pragma once

#include "family/registers/customers/customer_merge.hpp"
#include "family/registers/customers/customers.hpp"

namespace kova::family::registers {

/// The customer with its channels; nothing where there is none.
std::optional<CustomerRecord> FindCustomer(Database& database, Key key);

/// Tells what the kept customer takes over, in `filled` and `lost`, by what the forms show.
void CompareFields(CustomerMerge& merge);

/// Does that to the record.
void FillFields(const CustomerMerge& merge, const CustomerRecord& other, CustomerRecord& kept);

/// An animal, found by its customer.
struct AnimalOfCustomer : AnimalRow {
    static constexpr const char* FoundBy = "codigo_do_cliente";
};

/// The animals of a customer, by code. Fails with a DatabaseFailure.
std::vector<AnimalRow> AnimalsOf(Database& database, Key customer);

/// Whether two animals have the same name and species.
bool AreAlike(Database& database, const AnimalRow& one, const AnimalRow& other);

} // namespace kova::family::registers
