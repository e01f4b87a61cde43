#include "registers/record_actions.hpp"

namespace kova::registers {

RecordActions UsualActions() { return {}; }

} // namespace kova::registers
