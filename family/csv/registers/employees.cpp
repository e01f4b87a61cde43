#include "family/csv/import_of.hpp"
#include "family/csv/registers/all_registers.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/registers/shop/shop_columns.hpp"

namespace kova::family::csv {

namespace {

using family::EmployeeRow;
using family::registers::EmployeeColumns;

class EmployeeImport : public ImportOf<EmployeeRow> {
public:
    EmployeeImport(family::Database& database, DateTime) : ImportOf(database, EmployeeColumns()) { }

private:
    void Complete(EmployeeRow& row) const override { row.nomeDeBusca = family::FoldText(row.nome); }

    void LookUp(std::span<const EmployeeRow>) override
    {
        family::SelectRows<EmployeeRow>(GetDatabase(), [this](const EmployeeRow& row) { AddStored(row); });
    }

    std::vector<std::string> TraitsOf(const EmployeeRow& row) const override
    {
        return {family::FoldText(row.apelido) + "\n" + row.nomeDeBusca};
    }

    void WriteRecord(EmployeeRow& row, const family::Author& author) override
    {
        family::AddRow(GetDatabase(), row, author);
    }
};

} // namespace

const Register EmployeeRegister{
    "funcionarios",
    StartImport<EmployeeImport>,
    [](family::Database& database, const FieldsSink& sink) { ExportRows(database, EmployeeColumns(), sink); },
    EmployeeRow::Table,
};

} // namespace kova::family::csv
