// The entry points of a component library: the system's own five, by which any program uses its classes, and
// the family's two.

#include "agenda/contracts/support/component_library.hpp"
#include "component/windows/class_object.hpp"
#include "component/windows/failures.hpp"
#include "component/windows/objects.hpp"
#include "component/windows/own_host.hpp"
#include "component/windows/registration.hpp"
#include "system/path_text.hpp"
#include "system/program_path.hpp"

#include <exception>
#include <string_view>
#include <vector>

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

using WithSystem = bool (*)(const std::vector<kova::ClassRegistration>&);

HRESULT Registered(WithSystem withSystem)
{
    try {
        if (withSystem(ClassesWithPath()))
            return S_OK;
    } catch (const std::exception&) {
        // Nobody is told more than that it failed.
    }
    return static_cast<HRESULT>(kova::ServerStatus::RegistrationFailed);
}

/// Registers with the host that is attached, else with the system.
HRESULT Registered(std::int32_t (kova::ComponentLibrary::*withHost)(), WithSystem withSystem)
{
    try {
        kova::ComponentLibrary& library = ServedLibrary::Get();
        return library.Host() ? (library.*withHost)() : Registered(withSystem);
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

/// For whom it is done, as in "regsvr32 /n /i:user": this user alone, or with no word as without "/n".
STDAPI DllInstall(BOOL install, PCWSTR forWhom)
{
    const std::wstring_view whom = forWhom != nullptr ? forWhom : L"";
    if (whom.empty())
        return install ? DllRegisterServer() : DllUnregisterServer();
    if (whom != L"user")
        return E_INVALIDARG;
    return Registered(install ? kova::component::RegisterForUser : kova::component::UnregisterForUser);
}
