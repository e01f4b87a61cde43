// draw-icon FOLDER: writes the application's icon below the folder as desktops look for it,
// SIZExSIZE/apps/kovaris.png and scalable/apps/kovaris.svg.

#include "host/shell/icon.hpp"

#include <QDir>
#include <QFile>

#include <cstdlib>
#include <iostream>

namespace {

constexpr int Sizes[] = {16, 22, 24, 32, 48, 64, 96, 128, 256, 512};

/// Where the icon of that size lies; its folder is made. "scalable" is one, too.
QString FileIn(const QString& folder, const QString& size, const QString& ending)
{
    const QString place = folder + QLatin1Char('/') + size + QStringLiteral("/apps");
    QDir().mkpath(place);
    return place + QStringLiteral("/kovaris.") + ending;
}

bool WriteDrawing(const QString& folder)
{
    QFile file(FileIn(folder, QStringLiteral("scalable"), QStringLiteral("svg")));
    const QByteArray text = kova::host::ApplicationDrawing().toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush();
}

bool WritePicture(const QString& folder, int size)
{
    const QString name = QStringLiteral("%1x%1").arg(size);
    return kova::host::ApplicationPicture(size).save(FileIn(folder, name, QStringLiteral("png")), "PNG");
}

} // namespace

int main(int count, char** words)
{
    if (count != 2) {
        std::cerr << "draw-icon FOLDER" << std::endl;
        return 2;
    }
    const QString folder = QFile::decodeName(words[1]);
    bool written = WriteDrawing(folder);
    for (const int size : Sizes)
        written = WritePicture(folder, size) && written;
    if (!written)
        std::cerr << "draw-icon: could not write below " << words[1] << std::endl;
    return written ? EXIT_SUCCESS : EXIT_FAILURE;
}
