#pragma once

#include <string>

namespace kova::test {

/// Whether nobody but its owner may read or write the file; where files have the rights of their folder,
/// whether this one has them.
bool IsForItsOwnerAlone(const std::string& path);

} // namespace kova::test
