#include "system/fatal_report.hpp"

namespace kova::system {

void WriteOnFatalFailure(const FatalReport&) { }

} // namespace kova::system
