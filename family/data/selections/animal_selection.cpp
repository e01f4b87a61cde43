#include "family/data/selections/animal_selection.hpp"

#include "family/data/engine/search_text.hpp"
#include "family/data/selections/codes_by_text.hpp"
#include "family/data/selections/folded_texts.hpp"
#include "family/data/selections/rows_by_code.hpp"

namespace kova::family {

namespace {

constexpr int Inactive = 2, OwnerDeleted = 4;

// In the order of FoundAnimalOf::Members.
constexpr const char* Columns =
    "select n.codigo, n.nome, n.sexo, n.situacao, e.codigo, e.nome, r.codigo, r.nome, n.cor, c.codigo,"
    " c.apelido, c.nome, c.situacao, c.endereco_completo, c.tipos_e_canais, c.vip, c.categoria_da_curva_abc"
    " from animal n"
    " join cliente c on c.codigo = n.codigo_do_cliente"
    " join raca r on r.codigo = n.codigo_da_raca"
    " join especie e on e.codigo = r.codigo_da_especie";

constexpr const char* OneAnimal = " where n.codigo = :codigo and n.codigo_do_cliente = :cliente";

class AnimalByCode : public RowSelection<FoundAnimalOf> {
public:
    explicit AnimalByCode(Database& database) : RowSelection(database)
    {
        Use(code_, "codigo");
        Use(customer_, "cliente");
        Prepare(std::string(Columns) + OneAnimal);
    }

    KeptRows<FoundAnimalOf> Run(Key code, Key customer)
    {
        code_ = code;
        customer_ = customer;
        return Fetch();
    }

private:
    Key code_ = 0, customer_ = 0;
};

struct AnimalsByCode : RowsByCode<FoundAnimalOf> {
    explicit AnimalsByCode(Database& database) : RowsByCode(database, Columns, "n.codigo") { }
};

struct CodesByMicrochip : CodesByText {
    explicit CodesByMicrochip(Database& database)
        : CodesByText(database, "select codigo from animal where microchip = :texto")
    {
    }
};

/// The few animals of one customer, searched where they lie.
class CodesOfCustomer : public KeptStatement {
public:
    explicit CodesOfCustomer(Database& database)
        : statement_((database.Session().prepare
                          << "select codigo from animal where codigo_do_cliente = :cliente and situacao = 1"
                             " and (nome_de_busca like :padrao escape '!' or codigo = :codigo"
                             " or microchip = :digitos) order by nome_de_busca, codigo",
                      soci::use(customer_, "cliente"), soci::use(text_.pattern, "padrao"),
                      soci::use(text_.code.value, text_.code.state, "codigo"),
                      soci::use(text_.number.value, text_.number.state, "digitos"), soci::into(code_)))
    {
    }

    std::vector<Key> Run(const SearchText& text, Key customer)
    {
        text_ = text;
        customer_ = customer;
        std::vector<Key> codes;
        statement_.execute();
        while (statement_.fetch())
            codes.push_back(code_);
        return codes;
    }

private:
    SearchText text_;
    Key customer_ = 0, code_ = 0;
    soci::statement statement_;
};

std::vector<Key> SelectOfAllCustomers(Database& database, const SearchText& text)
{
    std::vector<Key> exact;
    if (!text.number.IsNull())
        exact = CodesBy<CodesByMicrochip>(database, text.number.value);
    if (!text.code.IsNull())
        exact.push_back(text.code.value);
    return database.With<AnimalNames>([&](AnimalNames& names) {
        const TextRows& rows = names.Refreshed();
        std::vector<Key> codes;
        for (const TextRows::Place place : rows.PlacesWith(text.folded, exact))
            codes.push_back(rows.KeyAt(place));
        return codes;
    });
}

FoundAnimalOf<std::string_view> Gone(Key code)
{
    FoundAnimalOf<std::string_view> gone;
    gone.codigo = code;
    gone.situacao = Inactive;
    gone.situacaoDoCliente = OwnerDeleted;
    return gone;
}

} // namespace

KeptRows<FoundAnimalOf> SelectAnimal(Database& database, Key code, Key customer)
{
    return database.With<AnimalByCode>(
        [&](AnimalByCode& selection) { return selection.Run(code, customer); });
}

std::vector<Key> SelectAnimals(Database& database, const std::string& text, Key customer)
{
    const SearchText sought(text);
    if (customer == 0)
        return SelectOfAllCustomers(database, sought);
    return database.With<CodesOfCustomer>(
        [&](CodesOfCustomer& selection) { return selection.Run(sought, customer); });
}

void FetchAnimals(Database& database, std::span<const Key> codes, KeptRows<FoundAnimalOf>& kept)
{
    FetchInOrder<AnimalsByCode>(database, codes, kept, Gone);
}

} // namespace kova::family
