// The library's classes: a host registers, loads and asks for KOVA_A_Agenda.clsAgenda.

#include "agenda/contracts/support/component_library.hpp"
#include "agenda/list/clsAgenda.hpp"
#include "agenda/list/module_reset.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"

namespace {

using namespace kova;

/// A list on the screen needs the library's code as much as an object of its class does.
bool ListsAreOpen() { return !agenda::Principal.ListasAbertas.empty(); }

void HostChanged(ServerHost* host)
{
    if (!host)
        agenda::ReiniciarModulo();
    agenda::AttachPlatform(host ? &host->GetPlatform() : nullptr);
}

ComponentLibrary& Library()
{
    static ComponentLibrary library(
        {{std::string(agenda::clsAgenda::ClassName), "{6C1F0B52-3E7D-4C58-9B7A-2F0C4D8E51A3}",
          [](ServerHost&) { return std::make_unique<agenda::clsAgenda>(); }}},
        {.isInUse = ListsAreOpen, .hostChanged = HostChanged});
    return library;
}

const ServedLibrary served(Library);

} // namespace
