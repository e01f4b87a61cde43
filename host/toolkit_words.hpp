#pragma once

#include <QStringList>

class QApplication;

namespace kova::host {

/// Where the toolkit's own words may lie: the toolkit's folder and the one beside the file that this is part
/// of, which inside a program that is not of the family is a library in another folder than the program.
QStringList FoldersOfToolkitWords();

/// The toolkit's own words (menus of text boxes, its dialogs) in Portuguese, whatever the desktop speaks,
/// from the first of the folders that has them.
void SpeakPortuguese(QApplication& application, const QStringList& folders = FoldersOfToolkitWords());

} // namespace kova::host
