#pragma once

namespace kova::component {

/// Sees to it that the library has a host: where none is attached, one of its own (platform_library.hpp).
/// Fails with 429 where there can be none, and where objects that were made in another thread live: the
/// library serves one thread at a time.
void RequireHost();

/// Lets go of the library's own host, and so of what the module has kept from its callers. True where there
/// is none any more; false where something is in use, or another thread's.
bool LetGoOfOwnHost();

} // namespace kova::component
