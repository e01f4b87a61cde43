#pragma once

class QApplication;

namespace kova::host {

/// The toolkit's own words (menus of text boxes, its dialogs) in Portuguese, whatever the desktop speaks.
void SpeakPortuguese(QApplication& application);

} // namespace kova::host
