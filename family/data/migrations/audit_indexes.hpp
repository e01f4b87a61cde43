#pragma once

#include "family/data/engine/dialect.hpp"

#include <string>
#include <vector>

/// What the lines of the audit are found by, in a shop and in the file of its archive.
namespace kova::family {

/// The indexes that lead to lines in the order of their days: all, those of a user, and of the kinds and the
/// tables that few lines have.
std::vector<std::string> IndexDaysOfAudit(const Dialect& dialect);

/// What knows the words among what lines tell, of those that are there too.
std::vector<std::string> IndexWordsOfAudit(const Dialect& dialect);

} // namespace kova::family
