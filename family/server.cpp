#include "agenda/contracts/support/component_library.hpp"
#include "family/business/appointments/agenda.hpp"
#include "family/business/lent_record_sets.hpp"
#include "family/business/registers/animals.hpp"
#include "family/business/registers/breeds.hpp"
#include "family/business/registers/customers.hpp"
#include "family/business/registers/employees.hpp"
#include "family/business/registers/holidays.hpp"
#include "family/business/registers/service_types.hpp"
#include "family/business/registers/services.hpp"
#include "family/business/registers/species.hpp"
#include "family/business/shop/company.hpp"
#include "family/business/shop/database_component.hpp"
#include "family/business/shop/print_component.hpp"
#include "family/business/shop/system_version.hpp"
#include "family/data/sources/shared_database.hpp"

namespace {

template <class Class> kova::ComponentLibrary::Entry Entry(const char* classId)
{
    return {std::string(Class::ClassName), classId,
            [](kova::ServerHost& host) { return std::make_unique<Class>(host); }};
}

/// A record set that is still held counts as an object of the library.
bool RecordSetsAreLent() { return kova::family::LentRecordSets() > 0; }

/// Without a host nobody will come back for the connections.
void HostChanged(kova::ServerHost* host)
{
    if (!host)
        kova::family::CloseSharedDatabases();
}

kova::ComponentLibrary& Library()
{
    using namespace kova::family;
    static kova::ComponentLibrary library(
        {
            Entry<Agenda>("{3C8F0B1E-6D2A-4E57-9A41-1F5B7C2D9E01}"),
            Entry<ServiceTypes>("{3C8F0B1E-6D2A-4E57-9A41-1F5B7C2D9E02}"),
            Entry<Employees>("{3C8F0B1E-6D2A-4E57-9A41-1F5B7C2D9E03}"),
            Entry<Company>("{3C8F0B1E-6D2A-4E57-9A41-1F5B7C2D9E04}"),
            Entry<SystemVersion>("{3C8F0B1E-6D2A-4E57-9A41-1F5B7C2D9E05}"),
            Entry<DatabaseComponent>("{3C8F0B1E-6D2A-4E57-9A41-1F5B7C2D9E06}"),
            Entry<Species>("{3C8F0B1E-6D2A-4E57-9A41-1F5B7C2D9E07}"),
            Entry<Breeds>("{3C8F0B1E-6D2A-4E57-9A41-1F5B7C2D9E08}"),
            Entry<Services>("{3C8F0B1E-6D2A-4E57-9A41-1F5B7C2D9E09}"),
            Entry<Customers>("{3C8F0B1E-6D2A-4E57-9A41-1F5B7C2D9E0A}"),
            Entry<Animals>("{3C8F0B1E-6D2A-4E57-9A41-1F5B7C2D9E0B}"),
            Entry<Holidays>("{3C8F0B1E-6D2A-4E57-9A41-1F5B7C2D9E0C}"),
            Entry<PrintComponent>("{3C8F0B1E-6D2A-4E57-9A41-1F5B7C2D9E0D}"),
        },
        {.isInUse = RecordSetsAreLent, .hostChanged = HostChanged});
    return library;
}

const kova::ServedLibrary served(Library);

} // namespace
