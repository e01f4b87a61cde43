#include "registers/record_actions.hpp"

#include "registers/person_dialog.hpp"

namespace kova::registers {

RecordActions UsualActions() { return {PersonAction()}; }

} // namespace kova::registers
