#include "family/csv/import_of_rows.hpp"
#include "family/csv/registers/all_registers.hpp"
#include "family/registers/shop/shop_columns.hpp"

namespace kova::family::csv {

namespace {

using registers::ServiceTypeColumns;

class ServiceTypeImport : public ImportOfRows<ServiceTypeRow> {
public:
    ServiceTypeImport(Database& database, DateTime) : ImportOfRows(database, ServiceTypeColumns()) { }
};

} // namespace

constinit const Register ServiceTypeRegister = RegisterOfRows<ServiceTypeImport, ServiceTypeColumns>("tipos");

} // namespace kova::family::csv
