#pragma once

#include <functional>
#include <string>

namespace kova::family {

class Database;

/// Writes to the shop at `source` what is told of somebody who reads it, over a connection of its own.
/// Nothing is written to a copy (a file that ends in ".bak"), nor to a file that may not be written. Fails
/// with a DatabaseFailure.
void TellOfSource(const std::string& source, const std::function<void(Database&)>& tell);

} // namespace kova::family
