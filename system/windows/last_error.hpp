#pragma once

#include <system_error>

// The system's header comes first wherever it is needed: without it the others lack their types.
#include <windows.h>

namespace kova::system {

/// Why the call of the system failed that came last in this thread. To be asked right behind it.
inline std::error_code LastError() { return {static_cast<int>(::GetLastError()), std::system_category()}; }

} // namespace kova::system
