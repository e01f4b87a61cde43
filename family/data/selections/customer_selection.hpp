#pragma once

#include "family/data/rows/kept_rows.hpp"
#include "family/data/rows/rows.hpp"

#include <span>

namespace kova::family {

/// A customer as the pickers show it.
template <class Text> struct FoundCustomerOf {
    Key codigo = 0;
    Text apelido, nome;
    /// 1 active, 2 inactive, 3 blocked, 4 deleted.
    int situacao = 0;
    Text enderecoCompleto, tiposECanais;
    int vip = 0;
    Text categoriaDaCurvaABC;

    auto Members()
    {
        return std::tie(codigo, apelido, nome, situacao, enderecoCompleto, tiposECanais, vip,
                        categoriaDaCurvaABC);
    }
};

/// All conditions apply together; 0 and an empty text are no condition. Parts of texts are found without
/// regard to case and accents.
struct CustomerFilter {
    /// A part of the nickname or of the name; or exactly a code or a document number.
    std::string text;
    /// A part of the nickname or of the name.
    std::string name;
    Key code = 0;
    /// A part of the address with its postal code.
    std::string address;
};

/// Codes of the customers, of every situation, by name, then code. Fails as Database::With.
std::vector<Key> SelectCustomers(Database& database, const CustomerFilter& filter);

/// Adds a row for each of the codes, in their order; MostRowsAtOnce codes and at least one. A customer that
/// is gone since it was found is added as deleted and without texts. Fails as Database::With.
void FetchCustomers(Database& database, std::span<const Key> codes, KeptRows<FoundCustomerOf>& kept);

} // namespace kova::family
