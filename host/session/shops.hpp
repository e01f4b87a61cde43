#pragma once

#include "host/options.hpp"
#include "host/session/session.hpp"

namespace kova::host {

/// One session after the other, each with the shop that the user turns to: the one that the options name,
/// else the one that was open last, else the one that is asked for. A picture and a measured start ask nobody
/// and take the demonstration. Answers the last session's exit status; throws as RunSession where nobody can
/// be asked for another shop.
int RunShops(const Options& options, Outlet outlet);

} // namespace kova::host
