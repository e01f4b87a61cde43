#pragma once

#include "agenda/contracts/failure.hpp"

#include <exception>

namespace kova {

/// A failure of any kind as one that crosses a border: what comes from the language's own library has a
/// number's text, and its own words, which are English, as the detail.
Failure AsFailure(const std::exception& failure);

} // namespace kova
