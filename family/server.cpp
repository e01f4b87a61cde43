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

kova::ComponentLibrary& Library()
{
    using namespace kova::family;
    static kova::ComponentLibrary library({
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
    });
    return library;
}

} // namespace

/// A record set that is still held counts as an object of the library.
///
/// Without a host nobody will come back for the connections.
KOVA_ENTRY_POINT std::int32_t KovaAttachHost(kova::ServerHost* host)
{
    if (host != Library().Host() && kova::family::LentRecordSets() > 0)
        return static_cast<std::int32_t>(kova::ServerStatus::Refused);
    const std::int32_t status = Library().AttachHost(host);
    if (!host && status == 0)
        kova::family::CloseSharedDatabases();
    return status;
}

KOVA_ENTRY_POINT std::int32_t DllGetClassObject(const char* classId, kova::ClassFactory** factory)
{
    return Library().GetClassObject(classId, factory);
}

KOVA_ENTRY_POINT std::int32_t DllCanUnloadNow()
{
    if (kova::family::LentRecordSets() > 0)
        return static_cast<std::int32_t>(kova::ServerStatus::Busy);
    return Library().CanUnloadNow();
}

KOVA_ENTRY_POINT std::int32_t DllRegisterServer() { return Library().RegisterServer(); }

KOVA_ENTRY_POINT std::int32_t DllUnregisterServer() { return Library().UnregisterServer(); }
