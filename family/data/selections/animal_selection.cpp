#include "family/data/selections/animal_selection.hpp"

#include "family/data/engine/search_text.hpp"

namespace kova::family {

namespace {

// In the order of FoundAnimalOf::Members.
constexpr const char* Columns =
    "select n.codigo, n.nome, n.sexo, n.situacao, e.codigo, e.nome, r.codigo, r.nome, n.cor, c.codigo,"
    " c.apelido, c.nome, c.situacao, c.endereco_completo, c.tipos_e_canais, c.vip, c.categoria_da_curva_abc"
    " from animal n"
    " join cliente c on c.codigo = n.codigo_do_cliente"
    " join raca r on r.codigo = n.codigo_da_raca"
    " join especie e on e.codigo = r.codigo_da_especie";

constexpr const char* OneAnimal = " where n.codigo = :codigo and n.codigo_do_cliente = :cliente";

// The text is looked for on its own so that only what it finds is fetched from the tables.
constexpr const char* AnimalsWithText =
    " where n.codigo in (select codigo from animal where nome_de_busca like :padrao escape '!'"
    " union all select codigo from animal where codigo = :codigo"
    " union all select codigo from animal where microchip = :digitos)"
    " and n.situacao = 1 and (:cliente = 0 or n.codigo_do_cliente = :cliente)"
    " order by n.nome_de_busca, n.codigo";

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

class AnimalsByText : public RowSelection<FoundAnimalOf> {
public:
    explicit AnimalsByText(Database& database) : RowSelection(database)
    {
        Use(text_.pattern, "padrao");
        Use(text_.code, "codigo");
        Use(text_.digits, "digitos");
        Use(customer_, "cliente");
        Prepare(std::string(Columns) + AnimalsWithText);
    }

    KeptRows<FoundAnimalOf> Run(const std::string& text, Key customer)
    {
        text_ = SearchText(text);
        customer_ = customer;
        return Fetch();
    }

private:
    SearchText text_;
    Key customer_ = 0;
};

} // namespace

KeptRows<FoundAnimalOf> SelectAnimal(Database& database, Key code, Key customer)
{
    return database.With<AnimalByCode>(
        [&](AnimalByCode& selection) { return selection.Run(code, customer); });
}

KeptRows<FoundAnimalOf> SelectAnimals(Database& database, const std::string& text, Key customer)
{
    return database.With<AnimalsByText>(
        [&](AnimalsByText& selection) { return selection.Run(text, customer); });
}

} // namespace kova::family
