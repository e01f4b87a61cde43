#pragma once

#include <string>
#include <vector>

namespace kova::family::privacy {

/// Takes away what the engine keeps of values that were overwritten: free places in the file and its log, and
/// on a server the former rows. Answers why something stays for now, a sentence; empty where nothing does.
/// What was written before is not touched by a failure.
std::string DropRemains(const std::string& source);

/// The copies of a database file that lie beside it, by name. None for a server.
std::vector<std::string> CopiesBeside(const std::string& source);

} // namespace kova::family::privacy
