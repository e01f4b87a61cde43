#pragma once

#include "tests/monkey/act.hpp"

#include <functional>

namespace kova::monkey {

/// The acts that are left when as many as can be are taken out and `fails` still holds of the rest, which it
/// does of all of them. No act that is left can be taken out alone, unless `enough` has held meanwhile: it is
/// asked before each try, and ends the search.
std::vector<Act> Shorten(
    std::vector<Act> acts, const std::function<bool(const std::vector<Act>&)>& fails,
    const std::function<bool()>& enough = [] { return false; });

} // namespace kova::monkey
