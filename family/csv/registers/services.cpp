#include "family/csv/import_of_rows.hpp"
#include "family/csv/registers/all_registers.hpp"
#include "family/registers/shop/shop_columns.hpp"

namespace kova::family::csv {

namespace {

using registers::ServiceColumns;
using registers::ServiceRecord;
namespace column = registers::shop_columns;

class ServiceImport : public ImportOfRows<ServiceRecord> {
public:
    ServiceImport(Database& database, DateTime)
        : ImportOfRows(database, ServiceColumns()), types_(AllCodes<ServiceTypeRow>(database))
    {
    }

private:
    std::vector<std::string> TraitsOf(const ServiceRecord& row) const override
    {
        return {std::to_string(row.numeroDoTipo) + "\n" + row.nomeDeBusca};
    }

    void CheckRecord(ServiceRecord& row, Line& line) override
    {
        if (row.numeroDoTipo != 0 && !types_.contains(row.numeroDoTipo))
            line.Refuse(column::TypeOfService, std::to_string(row.numeroDoTipo),
                        "não há tipo de serviço com este número.");
    }

    const std::unordered_set<Key> types_;
};

} // namespace

constinit const Register ServiceRegister = RegisterOfRows<ServiceImport, ServiceColumns>("servicos");

} // namespace kova::family::csv
