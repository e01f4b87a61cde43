#pragma once

#include "agenda/contracts/platform.hpp"

namespace kova::agenda {

/// What the host handed over. The module reaches everything outside itself through it.
/// Fails with 91 before a host is attached.
Platform& ThePlatform();

/// Set when a host attaches, null when it detaches.
void AttachPlatform(Platform* platform);

/// Creates a component of the family by class name; failure 429 where it cannot be created.
ComponentRef CreateObject(std::string_view className);

} // namespace kova::agenda
