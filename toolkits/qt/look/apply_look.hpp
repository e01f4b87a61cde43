#pragma once

#include "toolkits/qt/look/theme.hpp"

namespace kova::qt {

/// Gives the application the product's look. It stays as it is until the next call; views that stand already
/// are not drawn anew.
void ApplyLook(QApplication& application, Look look = Look::Light);

} // namespace kova::qt
