#pragma once

#include <QString>

class QLabel;
class QWidget;

namespace kova::screens {

/// A label that shows every text as it stands, in as many lines as it needs.
QLabel* MakePlainLabel(const QString& name, QWidget* parent);

/// A tip that shows the text as it stands, also where it looks like markup.
QString PlainTip(const QString& text);

} // namespace kova::screens
