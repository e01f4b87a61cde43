#pragma once

#include <QStaticText>

class QFont;

namespace kova::qt {

/// The text laid out in one line for each of its lines, unlimited in width. Kept, so that measuring a text
/// and drawing it lay it out once, and a text that comes again costs nothing. The reference holds until
/// the next call. Fonts are told apart by family, size in pixels and boldness.
const QStaticText& LaidOutText(const QString& text, const QFont& font);

} // namespace kova::qt
