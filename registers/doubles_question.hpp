#pragma once

#include "family/registers/description/register.hpp"

#include <QWidget>

#include <vector>

namespace kova::registers {

/// What becomes of a form whose row may be there already.
struct DoublesAnswer {
    enum class What {
        /// The stored row `key` is shown in the place of what was typed.
        Open,
        Save,
        Stay,
    };

    What what = What::Stay;
    family::Key key = 0;
};

/// Tells each of them with what it has in common, and asks. To save is not offered where one of them bars it.
/// Escape stays.
DoublesAnswer AskAboutDoubles(QWidget& over, const std::vector<family::registers::LikelyDouble>& doubles);

} // namespace kova::registers
