// The five entry points of a component library.

#include "agenda/contracts/support/component_library.hpp"

using kova::ServedLibrary;

KOVA_ENTRY_POINT std::int32_t KovaAttachHost(kova::ServerHost* host)
{
    return ServedLibrary::Get().AttachHost(host);
}

KOVA_ENTRY_POINT std::int32_t DllGetClassObject(const char* classId, kova::ClassFactory** factory)
{
    return ServedLibrary::Get().GetClassObject(classId, factory);
}

KOVA_ENTRY_POINT std::int32_t DllCanUnloadNow() { return ServedLibrary::Get().CanUnloadNow(); }

KOVA_ENTRY_POINT std::int32_t DllRegisterServer() { return ServedLibrary::Get().RegisterServer(); }

KOVA_ENTRY_POINT std::int32_t DllUnregisterServer() { return ServedLibrary::Get().UnregisterServer(); }
