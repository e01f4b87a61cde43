#pragma once

class QDialog;

namespace kova::screens {

/// From then on a dialog becomes higher whenever what stands in it needs more room, such as a reason that is
/// told below a field.
void GrowWithContents(QDialog& dialog);

} // namespace kova::screens
