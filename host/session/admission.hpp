#pragma once

#include "host/options.hpp"
#include "host/session/session.hpp"

namespace kova::host {

class Door;
struct Shop;

/// Whether the options say who works, or when it is, in the place of the desk and the clock: for trials.
bool Pretends(const Options& options);

/// Whether whoever has called the program gets into the door's shop: signed in where it has users.
/// Throws BadArguments where the options do not go with the shop: a name, a day or a time that somebody has
/// typed in a shop that is none of the fictional ones, or users where nobody can be asked who it is.
bool Admit(Door& door, const Shop& shop, const Options& options, Outlet outlet);

} // namespace kova::host
