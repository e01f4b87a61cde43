// The library that component libraries look for beside them where a program brings no host.

#include "component/platform_library.hpp"
#include "host/embedded/embedded_host.hpp"

#include <exception>

#define KOVA_PLATFORM_ENTRY_POINT extern "C" __attribute__((visibility("default")))

KOVA_PLATFORM_ENTRY_POINT kova::ServerHost* KovaMakeHost(kova::ComponentService* components)
{
    try {
        kova::host::EmbeddedScreen* screen = kova::host::EmbeddedScreen::Get();
        return screen ? new kova::host::EmbeddedHost(*screen, *components) : nullptr;
    } catch (const std::exception&) {
        return nullptr;
    }
}

KOVA_PLATFORM_ENTRY_POINT void KovaEndHost(kova::ServerHost* host) { delete host; }
