// The entry points of a component library: the system's own four, by which any program uses its classes, and
// the family's two.

#include "agenda/contracts/support/component_library.hpp"
#include "component/windows/class_object.hpp"
#include "component/windows/failures.hpp"
#include "component/windows/objects.hpp"
#include "component/windows/own_host.hpp"
#include "component/windows/registration.hpp"
#include "system/path_text.hpp"
#include "system/program_path.hpp"

using kova::ServedLibrary;
using kova::component::Guarded;

namespace {

std::vector<kova::ClassRegistration> ClassesWithPath()
{
    auto classes = ServedLibrary::Get().Classes();
    for (kova::ClassRegistration& registration : classes)
        registration.libraryPath = kova::system::TextOf(kova::system::OwnPath());
    return classes;
}

/// Registers with the host that is attached, else with the system.
HRESULT Registered(std::int32_t (kova::ComponentLibrary::*withHost)(),
                   bool (*withSystem)(const std::vector<kova::ClassRegistration>&))
{
    try {
        kova::ComponentLibrary& library = ServedLibrary::Get();
        if (library.Host())
            return (library.*withHost)();
        return withSystem(ClassesWithPath()) ? S_OK
                                             : static_cast<HRESULT>(kova::ServerStatus::RegistrationFailed);
    } catch (const std::exception&) {
        return static_cast<HRESULT>(kova::ServerStatus::RegistrationFailed);
    }
}

} // namespace

KOVA_ENTRY_POINT std::int32_t KovaAttachHost(kova::ServerHost* host)
{
    return ServedLibrary::Get().AttachHost(host);
}

KOVA_ENTRY_POINT std::int32_t KovaClasses(const char* classId, kova::ClassFactory** factory)
{
    return ServedLibrary::Get().GetClassObject(classId, factory);
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID interfaceId, void** found)
{
    if (!found)
        return E_POINTER;
    *found = nullptr;
    return Guarded([&] {
        const auto classObject = kova::component::ClassObjectOf(classId);
        return classObject ? classObject->QueryInterface(interfaceId, found) : CLASS_E_CLASSNOTAVAILABLE;
    });
}

STDAPI DllCanUnloadNow()
{
    return Guarded([] {
        if (kova::component::ClassObjects() > 0 || ServedLibrary::Get().CanUnloadNow() != S_OK
            || !kova::component::LetGoOfOwnHost())
            return S_FALSE;
        return kova::component::ForeignObjects() == 0 ? S_OK : S_FALSE;
    });
}

STDAPI DllRegisterServer()
{
    return Registered(&kova::ComponentLibrary::RegisterServer, kova::component::RegisterForSystem);
}

STDAPI DllUnregisterServer()
{
    return Registered(&kova::ComponentLibrary::UnregisterServer, kova::component::UnregisterForSystem);
}
