#pragma once

#include <QString>

class QAction;
class QWidget;

namespace kova::screens {

/// Opens a button, or an entry of a menu, to the user, or shuts it. Where `why` is not empty it is shut
/// whatever `isOffered` says, and tells that under the mouse and to a screen reader, in the place of what it
/// told before.
void Offer(QWidget& button, bool isOffered, const QString& why);
void Offer(QAction& entry, bool isOffered, const QString& why);

} // namespace kova::screens
