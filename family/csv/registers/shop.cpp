// The registers that hold little: the shop itself, species, breeds.

#include "family/csv/import_of.hpp"
#include "family/csv/registers/all_registers.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/registers/shop/shop_columns.hpp"

#include <unordered_map>

namespace kova::family::csv {

namespace {

using family::CompanyRow;
using family::SpeciesRow;
using family::registers::BreedColumns;
using family::registers::BreedRecord;
using family::registers::CompanyColumns;
using family::registers::SpeciesColumns;
namespace column = family::registers::shop_columns;

class SpeciesImport : public ImportOf<SpeciesRow> {
public:
    SpeciesImport(family::Database& database, DateTime) : ImportOf(database, SpeciesColumns()) { }

private:
    void Complete(SpeciesRow& row) const override { row.nomeDeBusca = family::FoldText(row.nome); }

    void LookUp(std::span<const SpeciesRow>) override
    {
        family::SelectRows<SpeciesRow>(GetDatabase(), [this](const SpeciesRow& row) { AddStored(row); });
    }

    std::vector<std::string> TraitsOf(const SpeciesRow& row) const override { return {row.nomeDeBusca}; }

    void WriteRecord(SpeciesRow& row, const family::Author& author) override
    {
        family::AddRow(GetDatabase(), row, author);
    }
};

/// Species by their codes.
std::unordered_map<Key, SpeciesRow> AllSpecies(family::Database& database)
{
    std::unordered_map<Key, SpeciesRow> species;
    family::SelectRows<SpeciesRow>(database, [&](const SpeciesRow& row) { species[row.codigo] = row; });
    return species;
}

class BreedImport : public ImportOf<BreedRecord> {
public:
    BreedImport(family::Database& database, DateTime)
        : ImportOf(database, BreedColumns()), species_(AllSpecies(database))
    {
        for (const auto& [code, row] : species_)
            codes_[row.nomeDeBusca] = code;
    }

private:
    void Complete(BreedRecord& record) const override { record.nomeDeBusca = family::FoldText(record.nome); }

    void LookUp(std::span<const BreedRecord>) override
    {
        family::SelectRows<family::BreedRow>(GetDatabase(), [this](const family::BreedRow& row) {
            AddStored({row, species_[row.codigoDaEspecie].nome});
        });
    }

    std::vector<std::string> TraitsOf(const BreedRecord& record) const override
    {
        return {family::FoldText(record.species) + "\n" + record.nomeDeBusca};
    }

    void CheckRecord(BreedRecord& record, Line& line) override
    {
        if (!record.species.empty() && !codes_.contains(family::FoldText(record.species)))
            line.Refuse(column::Species, record.species, "não há espécie com este nome.");
    }

    void WriteRecord(BreedRecord& record, const family::Author& author) override
    {
        record.codigoDaEspecie = codes_.at(family::FoldText(record.species));
        family::AddRow(GetDatabase(), record, author);
    }

    std::unordered_map<Key, SpeciesRow> species_;
    std::unordered_map<std::string, Key> codes_;
};

class CompanyImport : public ImportOf<CompanyRow> {
public:
    CompanyImport(family::Database& database, DateTime) : ImportOf(database, CompanyColumns())
    {
        family::SelectRows<CompanyRow>(database,
                                       [this](const CompanyRow& row) { only_.AddStored(true, row.codigo); });
    }

private:
    void LookUp(std::span<const CompanyRow>) override { }
    std::vector<std::string> TraitsOf(const CompanyRow&) const override { return {}; }

    /// A shop is one company.
    void CheckRecord(CompanyRow& row, Line& line) override
    {
        const auto place = only_.Add(true, line.Number());
        if (place && !LeavesOut(*place, line))
            line.Refuse("Nome fantasia", row.nomeFantasia, "uma empresa " + place->Told() + ".");
    }

    void WriteRecord(CompanyRow& row, const family::Author& author) override
    {
        family::AddRow(GetDatabase(), row, author);
    }

    Occurrences<bool> only_;
};

} // namespace

const Register SpeciesRegister{
    "especies",
    StartImport<SpeciesImport>,
    [](family::Database& database, const FieldsSink& sink) { ExportRows(database, SpeciesColumns(), sink); },
    SpeciesRow::Table,
};

const Register BreedRegister{
    "racas",
    StartImport<BreedImport>,
    [](family::Database& database, const FieldsSink& sink) {
        std::unordered_map<Key, SpeciesRow> species = AllSpecies(database);
        ExportNames(BreedColumns(), sink);
        family::SelectRows<family::BreedRow>(database, [&](const family::BreedRow& row) {
            ExportRecord(BreedColumns(), {row, species[row.codigoDaEspecie].nome}, sink);
        });
    },
    BreedRecord::Table,
};

const Register CompanyRegister{
    "empresa",
    StartImport<CompanyImport>,
    [](family::Database& database, const FieldsSink& sink) { ExportRows(database, CompanyColumns(), sink); },
    CompanyRow::Table,
};

} // namespace kova::family::csv
