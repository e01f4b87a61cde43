#pragma once

#include "family/waiting/who_fits.hpp"

#include <optional>

namespace kova::family::waiting {

/// What the last write of that appointment has left free: it was cancelled or deleted, is another employee's
/// now, or runs at other hours. Nothing where it has left nothing. Fails with a DatabaseFailure.
std::optional<FreedPlace> FreedByLastWrite(Database& database, Key appointment);

} // namespace kova::family::waiting
