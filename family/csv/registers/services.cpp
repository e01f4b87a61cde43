#include "family/csv/import_of.hpp"
#include "family/csv/registers/all_registers.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/registers/shop/shop_columns.hpp"

namespace kova::family::csv {

namespace {

using family::ServiceTypeRow;
using family::registers::ServiceColumns;
using family::registers::ServiceRecord;
namespace column = family::registers::shop_columns;

class ServiceImport : public ImportOf<ServiceRecord> {
public:
    ServiceImport(family::Database& database, DateTime) : ImportOf(database, ServiceColumns())
    {
        family::SelectRows<ServiceTypeRow>(database,
                                           [&](const ServiceTypeRow& row) { types_.insert(row.numero); });
    }

private:
    void Complete(ServiceRecord& row) const override { row.nomeDeBusca = family::FoldText(row.nome); }

    void LookUp(std::span<const ServiceRecord>) override
    {
        family::SelectRows<ServiceRecord>(GetDatabase(),
                                          [this](const ServiceRecord& row) { AddStored(row); });
    }

    std::vector<std::string> TraitsOf(const ServiceRecord& row) const override
    {
        return {std::to_string(row.numeroDoTipo) + "\n" + row.nomeDeBusca};
    }

    void CheckRecord(ServiceRecord& row, Line& line) override
    {
        if (row.numeroDoTipo != 0 && types_.count(row.numeroDoTipo) == 0)
            line.Refuse(column::TypeOfService, std::to_string(row.numeroDoTipo),
                        "não há tipo de serviço com este número.");
    }

    void WriteRecord(ServiceRecord& row, const family::Author& author) override
    {
        family::AddRow(GetDatabase(), row, author);
    }

    std::unordered_set<Key> types_;
};

} // namespace

const Register ServiceRegister{
    "servicos",
    StartImport<ServiceImport>,
    [](family::Database& database, const FieldsSink& sink) { ExportRows(database, ServiceColumns(), sink); },
    ServiceRecord::Table,
};

} // namespace kova::family::csv
