#pragma once

#include <QSize>

class QDialog;

namespace kova::screens {

/// From then on a dialog stands on its screen with its frame, at first in the middle of its window, and is as
/// high as what stands in it needs and as `usual`, whose width it has: a reason that is told makes it higher
/// as long as it is there. Where the screen is too low, all but the last row of its column, the buttons,
/// scrolls. To be called once the column is filled.
void GrowWithContents(QDialog& dialog, const QSize& usual);

} // namespace kova::screens
