#pragma once

#include <string>

namespace kova::monkey {

/// Tells the world on standard error that something is wrong, as "finding: RULE: TEXT", and ends the process
/// with FindingStatus: what comes after would only hide it. `rule` stays the same for the same defect.
[[noreturn]] void TellFinding(const std::string& rule, const std::string& text);

inline constexpr int FindingStatus = 3;

} // namespace kova::monkey
