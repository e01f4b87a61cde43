#include "family/data/selections/customer_selection.hpp"

#include "family/data/engine/search_text.hpp"
#include "family/data/selections/customer_names.hpp"

#include <algorithm>
#include <optional>
#include <unordered_set>

namespace kova::family {

namespace {

constexpr int Deleted = 4;

/// A prepared selection of codes by one text.
class CodesByText : public KeptStatement {
public:
    std::vector<Key> Run(const std::string& text)
    {
        text_ = text;
        std::vector<Key> codes;
        statement_.execute();
        while (statement_.fetch())
            codes.push_back(code_);
        return codes;
    }

protected:
    CodesByText(Database& database, const char* statement)
        : statement_((database.Session().prepare << statement, soci::use(text_, "texto"), soci::into(code_)))
    {
    }

private:
    std::string text_;
    Key code_ = 0;
    soci::statement statement_;
};

struct CodesByDocument : CodesByText {
    explicit CodesByDocument(Database& database)
        : CodesByText(database, "select codigo from cliente where documento = :texto")
    {
    }
};

struct CodesByAddress : CodesByText {
    explicit CodesByAddress(Database& database)
        : CodesByText(database, "select codigo from cliente where endereco_de_busca like :texto escape '!'")
    {
    }
};

template <class Statement> std::vector<Key> CodesBy(Database& database, const std::string& text)
{
    return database.With<Statement>([&](Statement& statement) { return statement.Run(text); });
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
    if (!sought.text.digits.IsNull())
        sought.exact = CodesBy<CodesByDocument>(database, sought.text.digits.value);
    if (!sought.text.code.IsNull())
        sought.exact.push_back(sought.text.code.value);
    if (const SearchText address(filter.address); !address.IsEmpty()) {
        const std::vector<Key> codes = CodesBy<CodesByAddress>(database, address.pattern);
        sought.withAddress.emplace(codes.begin(), codes.end());
    }
    return sought;
}

std::vector<std::uint32_t> PlacesOf(const CustomerNames& names, const Sought& sought)
{
    if (sought.text.IsEmpty())
        return names.PlacesWith(sought.name.folded);
    std::vector<std::uint32_t> places = names.PlacesWith(sought.text.folded);
    if (sought.exact.empty())
        return places;
    for (const Key code : sought.exact)
        names.AddPlaceOf(code, places);
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}

std::vector<Key> Choose(const CustomerNames& names, const CustomerFilter& filter, const Sought& sought)
{
    std::vector<Key> codes;
    for (const std::uint32_t place : PlacesOf(names, sought)) {
        const Key code = names.CodeAt(place);
        if (filter.code != 0 && filter.code != code)
            continue;
        if (sought.withAddress && !sought.withAddress->contains(code))
            continue;
        if (names.NamesAt(place).find(sought.name.folded) != std::string_view::npos)
            codes.push_back(code);
    }
    return codes;
}

class CustomerByCode : public RowSelection<FoundCustomerOf> {
public:
    explicit CustomerByCode(Database& database) : RowSelection(database)
    {
        Use(code_, "codigo");
        // In the order of FoundCustomerOf::Members.
        Prepare("select codigo, apelido, nome, situacao, endereco_completo, tipos_e_canais, vip,"
                " categoria_da_curva_abc from cliente where codigo = :codigo");
    }

    void Run(Key code, KeptRows<FoundCustomerOf>& kept)
    {
        code_ = code;
        if (Fetch(kept) > 0)
            return;
        FoundCustomerOf<std::string_view>& gone = kept.rows.emplace_back();
        gone.codigo = code;
        gone.situacao = Deleted;
    }

private:
    Key code_ = 0;
};

} // namespace

std::vector<Key> SelectCustomers(Database& database, const CustomerFilter& filter)
{
    const Sought sought = SoughtBy(database, filter);
    return database.With<CustomerNames>([&](CustomerNames& names) {
        names.Refresh();
        return Choose(names, filter, sought);
    });
}

void FetchCustomer(Database& database, Key code, KeptRows<FoundCustomerOf>& kept)
{
    database.With<CustomerByCode>([&](CustomerByCode& selection) { selection.Run(code, kept); });
}

} // namespace kova::family
