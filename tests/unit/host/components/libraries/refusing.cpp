// A library that takes no host.

#include "agenda/contracts/support/component_library.hpp"

using namespace kova;

KOVA_ENTRY_POINT std::int32_t KovaAttachHost(ServerHost*)
{
    return static_cast<std::int32_t>(ServerStatus::Refused);
}
KOVA_ENTRY_POINT std::int32_t DllGetClassObject(const char*, ClassFactory**)
{
    return static_cast<std::int32_t>(ServerStatus::ClassNotAvailable);
}
// What it is called where the system has a function of that name.
KOVA_ENTRY_POINT std::int32_t KovaClasses(const char*, ClassFactory**)
{
    return static_cast<std::int32_t>(ServerStatus::ClassNotAvailable);
}
KOVA_ENTRY_POINT std::int32_t DllCanUnloadNow() { return 0; }
KOVA_ENTRY_POINT std::int32_t DllRegisterServer() { return 0; }
KOVA_ENTRY_POINT std::int32_t DllUnregisterServer() { return 0; }
