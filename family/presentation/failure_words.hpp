#pragma once

#include "family/presentation/error_report.hpp"

namespace kova::family {

/// A failure in words of those who work at the front desk.
struct FailureWords {
    /// What has happened.
    Text what;
    /// What to look at and what to do, a sentence or two each.
    Text look;
    Text act;
};

/// Never fails; a number that nobody knows has words too.
FailureWords WordsFor(const ErrorReport& report);

/// The report's description without what engines and libraries have said.
Text OwnDescription(const ErrorReport& report);

} // namespace kova::family
