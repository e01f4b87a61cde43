#include "family/registers/customers/animals.hpp"
#include "family/business/merged_row_text.hpp"
#include "family/csv/import_of.hpp"
#include "family/csv/registers/all_registers.hpp"
#include "family/data/engine/fold_text.hpp"

#include <unordered_map>

namespace kova::family::csv {

namespace {

using family::AnimalRow;
using family::BreedRow;
using family::SpeciesRow;
using family::registers::AnimalColumns;
using family::registers::AnimalRecord;
using family::registers::BreedOfNone;
namespace column = family::registers::animal_columns;

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
    void Complete(AnimalRecord& record) const override { record.Complete(); }

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
            line.Refuse(column::Customer, std::to_string(record.codigoDoCliente),
                        family::WhyNoCustomer(GetDatabase(), record.codigoDoCliente));
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

} // namespace kova::family::csv
