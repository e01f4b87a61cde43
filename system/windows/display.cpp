#include "system/display.hpp"

namespace kova::system {

bool DisplayAnswers(bool) { return true; }

} // namespace kova::system
