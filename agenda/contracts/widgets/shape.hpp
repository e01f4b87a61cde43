#pragma once

#include "agenda/contracts/widgets/widget.hpp"

namespace kova {

/// A rectangle drawn on its container; a shape of no more than 30 twips in one direction is a rule.
class Shape : public Widget { };

} // namespace kova
