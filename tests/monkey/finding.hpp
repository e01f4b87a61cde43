#pragma once

#include <string>

namespace kova::monkey {

/// Tells the world on standard error that something is wrong, as "finding: RULE: TEXT", and ends the process
/// with FindingStatus: what comes after would only hide it. `rule` stays the same for the same defect. Comes
/// back where the rule is overlooked.
void TellFinding(const std::string& rule, const std::string& text);
/// The same where nothing can go on.
[[noreturn]] void EndWithFinding(const std::string& rule, const std::string& text);

inline constexpr int FindingStatus = 3;

/// The environment may name rules by a regular expression that are overlooked, to look for others while those
/// wait for their mending.
inline constexpr const char* OverlookVariable = "MONKEY_OVERLOOK";

} // namespace kova::monkey
