#pragma once

#include "agenda/contracts/component_server.hpp"
#include "component/windows/held.hpp"

namespace kova::component {

/// What the system creates objects of a class with: of the library that this is part of. Null where it has no
/// such class.
Held<IClassFactory> ClassObjectOf(const CLSID& classId);

/// How many of them are held: they need the library's code as much as objects do.
long ClassObjects();

} // namespace kova::component
