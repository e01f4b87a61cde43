#include "family/data/rows/people_rows.hpp"
#include "tools/agenda-data/csv/import_of.hpp"

#include <unordered_map>
#include <unordered_set>

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
        family::SelectRows<SpeciesRow>(
            database, [&](const SpeciesRow& row) { species_.emplace(row.nomeDeBusca, row.codigo); });
        family::SelectRows<BreedRow>(database, [&](const BreedRow& row) {
            breeds_.emplace(BreedName(row.codigoDaEspecie, row.nomeDeBusca), row.codigo);
        });
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
};

/// A table's codes alone.
template <class Row> struct CodeOf {
    static constexpr const char* Table = Row::Table;
    Key code = 0;

    template <class Visit> void Columns(Visit visit) { visit("codigo", code); }
};

class AnimalImport : public ImportOf<AnimalRecord> {
public:
    AnimalImport(family::Database& database, DateTime)
        : ImportOf(database, AnimalColumns()), breeds_(database)
    {
        using KnownAnimal = CodeOf<AnimalRow>;
        using KnownCustomer = CodeOf<family::CustomerRow>;
        family::SelectRows<KnownAnimal>(database,
                                        [&](const KnownAnimal& known) { AddStoredCode(known.code); });
        family::SelectRows<KnownCustomer>(database,
                                          [&](const KnownCustomer& known) { customers_.insert(known.code); });
    }

private:
    void CheckRecord(AnimalRecord& record, Line& line) override
    {
        if (record.codigoDoCliente != 0 && customers_.count(record.codigoDoCliente) == 0)
            line.Refuse(CustomerColumn, std::to_string(record.codigoDoCliente),
                        "não há cliente com este código.");
    }

    void WriteRecord(AnimalRecord& record, const family::Author& author) override
    {
        const std::string breed = record.breed.empty() ? BreedOfNone : record.breed;
        record.codigoDaRaca = breeds_.FindOrAdd(record.species, breed, author);
        record.nomeDeBusca = family::FoldText(record.nome);
        family::AddRow<AnimalRow>(GetDatabase(), record, author);
    }

    Breeds breeds_;
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
