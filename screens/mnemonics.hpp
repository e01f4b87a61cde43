#pragma once

#include <QStringList>

namespace kova::screens {

/// The labels with "&" before a letter that no other of them has, and none of `taken`: their first letters
/// where that is possible. A label for which no letter is left stays as it is.
QStringList WithMnemonics(const QStringList& labels, const QString& taken);

} // namespace kova::screens
