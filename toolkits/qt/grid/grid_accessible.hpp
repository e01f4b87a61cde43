#pragma once

namespace kova::qt {

/// Lets assistive tools read the grids as tables. Called once.
void InstallGridAccessibility();

} // namespace kova::qt
