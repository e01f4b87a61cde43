#pragma once

#include "agenda/contracts/component_server.hpp"

#include <string_view>

/// Where a program that is none of the family's creates a component, nobody has attached a host. The
/// component library then brings its own: a library that lies beside it, under the name below, has the
/// screen, the clock, the settings and the shop, and exports these two C functions:
///
///   kova::ServerHost* KovaMakeHost(kova::ComponentService* components);
///       A host for one component library, which finds other components by `components`; null where there can
///       be none. What a process has once, the screen above all, is shared by all its hosts.
///   void KovaEndHost(kova::ServerHost* host);
///       Ends such a host, which is attached no more.
namespace kova::component {

inline constexpr std::string_view PlatformLibrary = "kovaris-platform";

} // namespace kova::component

extern "C" {
using KovaMakeHostFunction = kova::ServerHost* (*)(kova::ComponentService*);
using KovaEndHostFunction = void (*)(kova::ServerHost*);
}
