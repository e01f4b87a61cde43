#pragma once

#include <QString>

class QLabel;
class QWidget;

namespace kova::screens {

/// A label that shows every text as it stands, in as many lines as it needs.
QLabel* MakePlainLabel(const QString& name, QWidget* parent);

} // namespace kova::screens
