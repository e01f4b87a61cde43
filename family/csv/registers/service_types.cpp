#include "family/csv/import_of.hpp"
#include "family/csv/registers/all_registers.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/registers/shop/shop_columns.hpp"

namespace kova::family::csv {

namespace {

using family::ServiceTypeRow;
using family::registers::ServiceTypeColumns;

class ServiceTypeImport : public ImportOf<ServiceTypeRow> {
public:
    ServiceTypeImport(family::Database& database, DateTime) : ImportOf(database, ServiceTypeColumns()) { }

private:
    void Complete(ServiceTypeRow& row) const override { row.nomeDeBusca = family::FoldText(row.nome); }

    void LookUp(std::span<const ServiceTypeRow>) override
    {
        family::SelectRows<ServiceTypeRow>(GetDatabase(),
                                           [this](const ServiceTypeRow& row) { AddStored(row); });
    }

    std::vector<std::string> TraitsOf(const ServiceTypeRow& row) const override { return {row.nomeDeBusca}; }

    void WriteRecord(ServiceTypeRow& row, const family::Author& author) override
    {
        family::AddRow(GetDatabase(), row, author);
    }
};

} // namespace

const Register ServiceTypeRegister{
    "tipos",
    StartImport<ServiceTypeImport>,
    [](family::Database& database, const FieldsSink& sink) {
        ExportRows(database, ServiceTypeColumns(), sink);
    },
    ServiceTypeRow::Table,
};

} // namespace kova::family::csv
