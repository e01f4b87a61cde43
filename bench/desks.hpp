#pragma once

#include <functional>

namespace kova::bench {

/// What a desk does; the first call in its process prepares it and answers its work.
using DeskWork = std::function<void()>;
using PrepareDesk = std::function<DeskWork(int desk)>;

/// Starts that many processes, waits until all are prepared, has them work at the same time, and answers the
/// seconds from then until the last has ended. No connection of this process may be in use by them. Throws
/// std::runtime_error where one fails; it has told why on the standard error.
double SecondsOfDesks(int desks, const PrepareDesk& prepare);

} // namespace kova::bench
