#pragma once

namespace kova::component {

/// What the function is called by which a component library hands out the factories of its classes: the
/// second of the entry points that agenda/contracts/component_server.hpp tells of. Where the system has a
/// function of that name itself, with a signature of its own, ours is called otherwise.
const char* ClassesEntryPoint();

} // namespace kova::component
