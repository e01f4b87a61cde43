#pragma once

#include "family/data/rows/kept_rows.hpp"
#include "family/data/rows/rows.hpp"

namespace kova::family {

/// A service as the lookups show it.
template <class Text> struct FoundServiceOf {
    Key codigo = 0;
    Text nome, descricao;
    Key precoEmCentavos = 0, custoEmCentavos = 0, numeroDoTipo = 0;
    int duracaoEmMinutos = 0;

    auto Members()
    {
        return std::tie(codigo, nome, descricao, precoEmCentavos, custoEmCentavos, numeroDoTipo,
                        duracaoEmMinutos);
    }
};

/// All conditions apply together; 0 and an empty text are no condition. Parts of texts are found without
/// regard to case and accents.
struct ServiceFilter {
    /// A part of the name, or exactly a code.
    std::string text;
    /// A part of the name.
    std::string name;
    Key code = 0;
    Key type = 0;
};

/// Active services, by name, then code. Fails as Database::With.
KeptRows<FoundServiceOf> SelectServices(Database& database, const ServiceFilter& filter);

} // namespace kova::family
