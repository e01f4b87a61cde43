#pragma once

#include <string>
#include <string_view>

namespace kova::family {

/// A user's name as it is looked for and compared: neither case nor accents count, nor how many blanks stand
/// between its words and at its ends.
std::string FoldUserName(std::string_view name);

/// Most characters of a name, of a user or of a role.
inline constexpr std::size_t WidthOfUserName = 60;

/// Why nobody can be called so, or no role; a sentence, empty where it will do. What is not seen, or turns
/// other letters about, makes one name look like another.
std::string ObjectionToUserName(const std::string& name);

/// The same of its characters alone.
bool HasUnseenCharacters(std::string_view name);

} // namespace kova::family
