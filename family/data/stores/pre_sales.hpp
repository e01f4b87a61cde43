#pragma once

#include "family/data/audit/author.hpp"
#include "family/data/rows/rows.hpp"

#include <vector>

namespace kova::family {

class Database;

/// The values of `situacao` of a pre-sale.
namespace pre_sale_status {
inline constexpr int Open = 1;
inline constexpr int Cancelled = 2;
inline constexpr int Billed = 3;
} // namespace pre_sale_status

struct PreSale {
    Key code = 0;
    int status = 0;
};

/// An appointment's pre-sales that are open or billed, oldest first. Locks them in the transaction that is
/// open: whoever bills them waits for its end.
std::vector<PreSale> FindPreSales(Database& database, Key appointment);

/// Each with its line in the audit, in the transaction that is open.
void CreatePreSale(Database& database, Key appointment, Key priceInCents, const Author& author);
/// False where it was billed meanwhile: nothing is written then.
bool CancelPreSale(Database& database, const PreSale& preSale, const Author& author);

} // namespace kova::family
