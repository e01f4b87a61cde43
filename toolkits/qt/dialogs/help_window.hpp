#pragma once

#include "agenda/contracts/value.hpp"

#include <vector>

class QWidget;

namespace kova::toolkit {
struct KeyHelp;
}

namespace kova::qt {

/// Lists the keys of a form over that window and waits until the user closes it.
void ShowHelpWindow(QWidget* over, const Text& formCaption, const std::vector<toolkit::KeyHelp>& keys);

} // namespace kova::qt
