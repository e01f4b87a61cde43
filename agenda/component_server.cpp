// The library's five entry points. A host registers, loads and asks for KOVA_A_Agenda.clsAgenda here.

#include "agenda/contracts/support/component_library.hpp"
#include "agenda/list/clsAgenda.hpp"
#include "agenda/list/module_reset.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"

namespace {

using namespace kova;

ComponentLibrary& Library()
{
    static ComponentLibrary library(
        {{std::string(agenda::clsAgenda::ClassName), "{6C1F0B52-3E7D-4C58-9B7A-2F0C4D8E51A3}",
          [](ServerHost&) { return std::make_unique<agenda::clsAgenda>(); }}});
    return library;
}

/// A list on the screen needs the library's code as much as an object of its class does.
bool ListsAreOpen() { return !agenda::Principal.ListasAbertas.empty(); }

} // namespace

KOVA_ENTRY_POINT std::int32_t KovaAttachHost(ServerHost* host)
{
    if (host != Library().Host() && ListsAreOpen())
        return static_cast<std::int32_t>(ServerStatus::Refused);
    const std::int32_t status = Library().AttachHost(host);
    if (status == static_cast<std::int32_t>(ServerStatus::Ok)) {
        if (!host)
            agenda::ReiniciarModulo();
        agenda::AttachPlatform(host ? &host->GetPlatform() : nullptr);
    }
    return status;
}

KOVA_ENTRY_POINT std::int32_t DllGetClassObject(const char* classId, ClassFactory** factory)
{
    return Library().GetClassObject(classId, factory);
}

KOVA_ENTRY_POINT std::int32_t DllCanUnloadNow()
{
    return ListsAreOpen() ? static_cast<std::int32_t>(ServerStatus::Busy) : Library().CanUnloadNow();
}

KOVA_ENTRY_POINT std::int32_t DllRegisterServer() { return Library().RegisterServer(); }

KOVA_ENTRY_POINT std::int32_t DllUnregisterServer() { return Library().UnregisterServer(); }
