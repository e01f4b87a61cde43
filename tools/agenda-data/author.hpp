#pragma once

#include "family/data/audit/author.hpp"
#include "tools/agenda-data/command.hpp"

namespace kova::data {

/// Who stands in the audit for what a call writes: the name in its option --user, or else the user of the
/// computer.
family::Author AuthorOf(const Call& call, const Surroundings& surroundings);

} // namespace kova::data
