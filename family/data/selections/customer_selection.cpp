#include "family/data/selections/customer_selection.hpp"

#include "family/data/engine/search_text.hpp"
#include "family/data/selections/codes_by_text.hpp"
#include "family/data/selections/folded_texts.hpp"
#include "family/data/selections/rows_by_code.hpp"

#include <optional>
#include <unordered_set>

namespace kova::family {

namespace {

constexpr int Deleted = 4;

struct CodesByDocument : CodesByText {
    explicit CodesByDocument(Database& database)
        : CodesByText(database, "select codigo from cliente where documento = :texto")
    {
    }
};

std::unordered_set<Key> CodesByAddress(Database& database, const SearchText& address)
{
    return database.With<CustomerAddresses>([&](CustomerAddresses& addresses) {
        const TextRows& rows = addresses.Refreshed();
        std::unordered_set<Key> codes;
        for (const TextRows::Place place : rows.PlacesWith(address.folded))
            codes.insert(rows.KeyAt(place));
        return codes;
    });
}

/// What was typed, with the codes that it means beside the names that hold it.
struct Sought {
    SearchText text, name;
    std::vector<Key> exact;
    std::optional<std::unordered_set<Key>> withAddress;
};

Sought SoughtBy(Database& database, const CustomerFilter& filter)
{
    Sought sought{SearchText(filter.text), SearchText(filter.name), {}, {}};
    if (!sought.text.number.IsNull())
        sought.exact = CodesBy<CodesByDocument>(database, sought.text.number.value);
    if (!sought.text.code.IsNull())
        sought.exact.push_back(sought.text.code.value);
    if (const SearchText address(filter.address); !address.IsEmpty())
        sought.withAddress = CodesByAddress(database, address);
    return sought;
}

std::vector<TextRows::Place> PlacesOf(const TextRows& names, const Sought& sought)
{
    return sought.text.IsEmpty() ? names.PlacesWith(sought.name.folded)
                                 : names.PlacesWith(sought.text.folded, sought.exact);
}

std::vector<Key> Choose(const TextRows& names, const CustomerFilter& filter, const Sought& sought)
{
    std::vector<Key> codes;
    for (const TextRows::Place place : PlacesOf(names, sought)) {
        const Key code = names.KeyAt(place);
        if (filter.code != 0 && filter.code != code)
            continue;
        if (sought.withAddress && !sought.withAddress->contains(code))
            continue;
        if (names.TextAt(place).find(sought.name.folded) != std::string_view::npos)
            codes.push_back(code);
    }
    return codes;
}

struct CustomersByCode : RowsByCode<FoundCustomerOf> {
    explicit CustomersByCode(Database& database)
        // In the order of FoundCustomerOf::Members.
        : RowsByCode(database,
                     "select codigo, apelido, nome, situacao, endereco_completo, tipos_e_canais, vip,"
                     " categoria_da_curva_abc from cliente",
                     "codigo")
    {
    }
};

FoundCustomerOf<std::string_view> Gone(Key code)
{
    FoundCustomerOf<std::string_view> gone;
    gone.codigo = code;
    gone.situacao = Deleted;
    return gone;
}

} // namespace

std::vector<Key> SelectCustomers(Database& database, const CustomerFilter& filter)
{
    const Sought sought = SoughtBy(database, filter);
    return database.With<CustomerNames>(
        [&](CustomerNames& names) { return Choose(names.Refreshed(), filter, sought); });
}

void FetchCustomers(Database& database, std::span<const Key> codes, KeptRows<FoundCustomerOf>& kept)
{
    FetchInOrder<CustomersByCode>(database, codes, kept, Gone);
}

} // namespace kova::family
