// The registers that hold little: the shop itself, species, breeds.

#include "family/csv/import_of_rows.hpp"
#include "family/csv/registers/all_registers.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/registers/shop/shop_columns.hpp"

#include <unordered_map>

namespace kova::family::csv {

namespace {

using registers::BreedColumns;
using registers::BreedRecord;
using registers::CompanyColumns;
using registers::SpeciesColumns;
namespace column = registers::shop_columns;

class SpeciesImport : public ImportOfRows<SpeciesRow> {
public:
    SpeciesImport(Database& database, DateTime) : ImportOfRows(database, SpeciesColumns()) { }
};

/// Species by their codes.
std::unordered_map<Key, SpeciesRow> AllSpecies(Database& database)
{
    std::unordered_map<Key, SpeciesRow> species;
    SelectRows<SpeciesRow>(database, [&](const SpeciesRow& row) { species[row.codigo] = row; });
    return species;
}

class BreedImport : public ImportOfRows<BreedRecord> {
public:
    BreedImport(Database& database, DateTime)
        : ImportOfRows(database, BreedColumns()), species_(AllSpecies(database))
    {
        for (const auto& [code, row] : species_)
            codes_[row.nomeDeBusca] = code;
    }

private:
    void LookUp(std::span<const BreedRecord>) override
    {
        SelectRows<BreedRow>(GetDatabase(), [this](const BreedRow& row) {
            AddStored({row, species_[row.codigoDaEspecie].nome});
        });
    }

    std::vector<std::string> TraitsOf(const BreedRecord& record) const override
    {
        return {FoldText(record.species) + "\n" + record.nomeDeBusca};
    }

    void CheckRecord(BreedRecord& record, Line& line) override
    {
        if (!record.species.empty() && !codes_.contains(FoldText(record.species)))
            line.Refuse(column::Species, record.species, "não há espécie com este nome.");
    }

    void WriteRecord(BreedRecord& record, const Author& author) override
    {
        record.codigoDaEspecie = codes_.at(FoldText(record.species));
        ImportOfRows::WriteRecord(record, author);
    }

    std::unordered_map<Key, SpeciesRow> species_;
    std::unordered_map<std::string, Key> codes_;
};

class CompanyImport : public ImportOfRows<CompanyRow> {
public:
    CompanyImport(Database& database, DateTime) : ImportOfRows(database, CompanyColumns())
    {
        SelectRows<CompanyRow>(database,
                               [this](const CompanyRow& row) { only_.AddStored(true, row.codigo); });
    }

private:
    /// A shop is one company.
    void CheckRecord(CompanyRow& row, Line& line) override
    {
        const auto place = only_.Add(true, line.Number());
        if (place && !LeavesOut(*place, line))
            line.Refuse("Nome fantasia", row.nomeFantasia, "uma empresa " + place->Told() + ".");
    }

    Occurrences<bool> only_;
};

} // namespace

constinit const Register SpeciesRegister = RegisterOfRows<SpeciesImport, SpeciesColumns>("especies");

const Register BreedRegister{
    "racas",
    StartImport<BreedImport>,
    [](Database& database, const FieldsSink& sink) {
        std::unordered_map<Key, SpeciesRow> species = AllSpecies(database);
        ExportNames(BreedColumns(), sink);
        SelectRows<BreedRow>(database, [&](const BreedRow& row) {
            ExportRecord(BreedColumns(), {row, species[row.codigoDaEspecie].nome}, sink);
        });
    },
    BreedRecord::Table,
};

constinit const Register CompanyRegister = RegisterOfRows<CompanyImport, CompanyColumns>("empresa");

} // namespace kova::family::csv
