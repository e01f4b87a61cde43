#include "registers/record_actions.hpp"

#include "registers/merge_dialog.hpp"
#include "registers/person_dialog.hpp"

namespace kova::registers {

RecordActions UsualActions() { return {MergeAction(), PersonAction()}; }

} // namespace kova::registers
