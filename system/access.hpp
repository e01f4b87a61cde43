#pragma once

#include <string>

namespace kova::system {

/// Whether the process may read or write the file, or may look into or make files in the folder, by the
/// rights that it acts with. False where there is nothing at that path.
bool MayRead(const std::string& path);
bool MayWrite(const std::string& path);

/// Takes from everybody else what a file lets them do; a group that may write it was given leave on purpose
/// and keeps it. Nothing where the file is another user's, or where files get their rights from their folder.
void KeepFromOthers(const std::string& path);

} // namespace kova::system
