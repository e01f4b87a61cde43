#include "family/data/rows/people_rows.hpp"
#include "tools/agenda-data/csv/import_of.hpp"

#include <unordered_map>

namespace kova::data {

namespace {

using family::AnimalRow;
using family::BreedRow;
using family::SpeciesRow;

/// An animal with the names of its species and breed.
struct AnimalRecord : AnimalRow {
    std::string species, breed;
};
using Cols = ColumnsOf<AnimalRecord>;

constexpr const char* CustomerColumn = "Código do cliente";
constexpr const char* BreedOfNone = "Sem raça definida";
constexpr Choice Sizes[] = {{1, "Pequeno"}, {2, "Médio"}, {3, "Grande"}, {4, "Gigante"}};

std::string ReadSex(const std::string& cell, AnimalRecord& record)
{
    const std::string folded = family::FoldText(cell);
    if (folded == "m" || folded == "macho")
        record.sexo = "M";
    else if (folded == "f" || folded == "femea")
        record.sexo = "F";
    else
        return "não é conhecido. Use Macho ou Fêmea.";
    return {};
}

/// A chip is looked for by its digits.
std::string ReadMicrochip(const std::string& cell, AnimalRecord& record)
{
    const std::string digits = family::DigitsOf(cell);
    record.microchip = digits.empty() ? cell : digits;
    return CheckWidth(cell, 30);
}

const Columns<AnimalRecord>& AnimalColumns()
{
    static const Columns<AnimalRecord> columns = {
        Cols::Code("Código", &AnimalRow::codigo),
        Required(Cols::Code(CustomerColumn, &AnimalRow::codigoDoCliente)),
        Required(Cols::Text("Nome", &AnimalRow::nome, 100)),
        {"Sexo", ReadSex, [](const AnimalRecord& record) { return family::ShownSex(record.sexo); }, true},
        Required(Cols::Text("Espécie", &AnimalRecord::species, 50)),
        Cols::Text("Raça", &AnimalRecord::breed, 50),
        Required(Cols::OneOf("Porte", &AnimalRow::porte, Sizes)),
        Cols::Text("Cor", &AnimalRow::cor, 50),
        {"Microchip", ReadMicrochip, [](const AnimalRecord& record) { return record.microchip.ValueOr(""); }},
        Cols::Text("Observação", &AnimalRow::observacao, 255),
        Cols::OneOf("Situação", &AnimalRow::situacao, ActiveOrNot),
    };
    return columns;
}

/// Species and breeds by their folded names; those that are missing are made.
class Breeds {
public:
    explicit Breeds(family::Database& database) : database_(database)
    {
        std::unordered_map<Key, std::string> names;
        family::SelectRows<SpeciesRow>(database, [&](const SpeciesRow& row) {
            species_.emplace(row.nomeDeBusca, row.codigo);
            names[row.codigo] = row.nome;
        });
        family::SelectRows<BreedRow>(database, [&](const BreedRow& row) {
            breeds_.emplace(BreedName(row.codigoDaEspecie, row.nomeDeBusca), row.codigo);
            speciesOfBreeds_[row.codigo] = names[row.codigoDaEspecie];
        });
    }

    /// The species' name of a stored breed.
    std::string SpeciesOf(Key breed) const
    {
        const auto found = speciesOfBreeds_.find(breed);
        return found == speciesOfBreeds_.end() ? std::string() : found->second;
    }

    Key FindOrAdd(const std::string& species, const std::string& breed, const family::Author& author)
    {
        const Key ofSpecies = FindOrAddSpecies(species, author);
        const std::string folded = family::FoldText(breed);
        Key& code = breeds_[BreedName(ofSpecies, folded)];
        if (code == 0)
            code = family::AddRow(database_, BreedRow{0, ofSpecies, breed, folded}, author);
        return code;
    }

private:
    static std::string BreedName(Key species, const std::string& folded)
    {
        return std::to_string(species) + " " + folded;
    }

    Key FindOrAddSpecies(const std::string& name, const family::Author& author)
    {
        const std::string folded = family::FoldText(name);
        Key& code = species_[folded];
        if (code == 0)
            code = family::AddRow(database_, SpeciesRow{0, name, folded}, author);
        return code;
    }

    family::Database& database_;
    std::unordered_map<std::string, Key> species_, breeds_;
    std::unordered_map<Key, std::string> speciesOfBreeds_;
};

/// What an animal is told apart from others by.
struct KnownAnimal : AnimalRow {
    static constexpr const char* FoundBy = "codigo_do_cliente";

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("codigo_do_cliente", codigoDoCliente);
        visit("codigo_da_raca", codigoDaRaca);
        visit("nome_de_busca", nomeDeBusca);
    }
};

class AnimalImport : public ImportOf<AnimalRecord> {
public:
    AnimalImport(family::Database& database, DateTime)
        : ImportOf(database, AnimalColumns()), breeds_(database)
    {
    }

private:
    void Complete(AnimalRecord& record) const override { record.nomeDeBusca = family::FoldText(record.nome); }

    void LookUp(std::span<const AnimalRecord> records) override
    {
        std::set<Key> all, ofNewOnes;
        for (const AnimalRecord& record : records) {
            all.insert(record.codigoDoCliente);
            if (CodeIn(record) == 0)
                ofNewOnes.insert(record.codigoDoCliente);
        }
        customers_.clear();
        using KnownCustomer = CodeOf<family::CustomerRow>;
        family::SelectWhere<KnownCustomer>(
            GetDatabase(), all, [this](const KnownCustomer& known) { customers_.insert(known.code); });
        family::SelectWhere<KnownAnimal>(GetDatabase(), ofNewOnes, [this](const KnownAnimal& known) {
            AddStored({known, breeds_.SpeciesOf(known.codigoDaRaca), {}});
        });
    }

    std::vector<std::string> TraitsOf(const AnimalRecord& record) const override
    {
        return {std::to_string(record.codigoDoCliente) + "\n" + record.nomeDeBusca + "\n"
                + family::FoldText(record.species)};
    }

    void CheckRecord(AnimalRecord& record, Line& line) override
    {
        if (record.codigoDoCliente != 0 && !customers_.contains(record.codigoDoCliente))
            line.Refuse(CustomerColumn, std::to_string(record.codigoDoCliente),
                        "não há cliente com este código.");
    }

    void WriteRecord(AnimalRecord& record, const family::Author& author) override
    {
        const std::string breed = record.breed.empty() ? BreedOfNone : record.breed;
        record.codigoDaRaca = breeds_.FindOrAdd(record.species, breed, author);
        family::AddRow<AnimalRow>(GetDatabase(), record, author);
    }

    Breeds breeds_;
    /// Those that the lines being checked name.
    std::unordered_set<Key> customers_;
};

void ExportAnimals(family::Database& database, const FieldsSink& sink)
{
    std::unordered_map<Key, std::string> species;
    std::unordered_map<Key, BreedRow> breeds;
    family::SelectRows<SpeciesRow>(database, [&](const SpeciesRow& row) { species[row.codigo] = row.nome; });
    family::SelectRows<BreedRow>(database, [&](const BreedRow& row) { breeds[row.codigo] = row; });
    ExportNames(AnimalColumns(), sink);
    family::SelectRows<AnimalRow>(database, [&](const AnimalRow& row) {
        const BreedRow& breed = breeds[row.codigoDaRaca];
        ExportRecord(AnimalColumns(), {row, species[breed.codigoDaEspecie], breed.nome}, sink);
    });
}

} // namespace

const Register AnimalRegister{
    "animais",
    StartImport<AnimalImport>,
    ExportAnimals,
    AnimalRow::Table,
};

} // namespace kova::data
