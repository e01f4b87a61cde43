#pragma once

#include <QString>

#include <string>

class QWidget;

namespace kova::host {

/// What a tab shows that could not be opened: that it could not, and why.
QWidget* ExplanationInTab(const QString& what, const std::string& why, QWidget& parent);

} // namespace kova::host
