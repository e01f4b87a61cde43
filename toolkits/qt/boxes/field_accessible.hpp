#pragma once

namespace kova::qt {

/// Tells assistive tools what the fields are: combos with their value, options as radio buttons, and forms
/// without the controls that are hidden. Called once.
void InstallFieldAccessibility();

} // namespace kova::qt
