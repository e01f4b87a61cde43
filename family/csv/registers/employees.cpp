#include "family/csv/import_of_rows.hpp"
#include "family/csv/registers/all_registers.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/registers/shop/shop_columns.hpp"

namespace kova::family::csv {

namespace {

using registers::EmployeeColumns;

class EmployeeImport : public ImportOfRows<EmployeeRow> {
public:
    EmployeeImport(Database& database, DateTime) : ImportOfRows(database, EmployeeColumns()) { }

private:
    std::vector<std::string> TraitsOf(const EmployeeRow& row) const override
    {
        return {FoldText(row.apelido) + "\n" + row.nomeDeBusca};
    }
};

} // namespace

constinit const Register EmployeeRegister = RegisterOfRows<EmployeeImport, EmployeeColumns>("funcionarios");

} // namespace kova::family::csv
