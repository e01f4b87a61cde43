#pragma once

#include "tools/scenario/observed_components.hpp"

namespace kova::scenario {

/// A record set that logs what is written to it and leaves all else to another one. Walking it is not
/// logged.
RecordSetRef Observe(RecordSetRef inner, std::shared_ptr<CrossingLog> log);

/// A value with its record set observed, where it holds one.
Value Observed(const Value& value, const std::shared_ptr<CrossingLog>& log);

} // namespace kova::scenario
