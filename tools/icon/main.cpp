// draw-icon FOLDER: writes the application's icon below the folder as desktops look for it,
// SIZExSIZE/apps/kovaris.png and scalable/apps/kovaris.svg.
// draw-icon FILE.ico: writes it in all sizes that Windows shows, into one file.

#include "host/shell/icon.hpp"

#include <QBuffer>
#include <QDataStream>
#include <QDir>
#include <QFile>

#include <cstdlib>
#include <iostream>
#include <iterator>

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

constexpr int WindowsSizes[] = {16, 20, 24, 32, 40, 48, 64, 96, 128, 256};

QByteArray Encoded(const QImage& picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "PNG");
    return bytes;
}

/// A head, an entry of 16 bytes for each picture, and the pictures as they are.
QByteArray WindowsIcon()
{
    constexpr quint16 Reserved = 0, Icon = 1, Planes = 1, BitsOfAPoint = 32;
    constexpr quint32 SizeOfHead = 6, SizeOfEntry = 16;
    QByteArray file, pictures;
    QDataStream out(&file, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << Reserved << Icon << static_cast<quint16>(std::size(WindowsSizes));
    for (const int size : WindowsSizes) {
        const QByteArray picture = Encoded(kova::host::ApplicationPicture(size));
        // 256 is told by 0.
        const auto side = static_cast<quint8>(size % 256);
        constexpr quint8 NoPalette = 0, Unused = 0;
        const auto place = SizeOfHead + SizeOfEntry * static_cast<quint32>(std::size(WindowsSizes))
            + static_cast<quint32>(pictures.size());
        out << side << side << NoPalette << Unused << Planes << BitsOfAPoint
            << static_cast<quint32>(picture.size()) << place;
        pictures += picture;
    }
    return file + pictures;
}

bool WriteWindowsIcon(const QString& name)
{
    QFile file(name);
    const QByteArray bytes = WindowsIcon();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

bool WriteForDesktops(const QString& folder)
{
    bool written = WriteDrawing(folder);
    for (const int size : Sizes)
        written = WritePicture(folder, size) && written;
    return written;
}

} // namespace

int main(int count, char** words)
{
    if (count != 2) {
        std::cerr << "draw-icon FOLDER\ndraw-icon FILE.ico" << std::endl;
        return 2;
    }
    const QString place = QFile::decodeName(words[1]);
    const bool written =
        place.endsWith(QStringLiteral(".ico")) ? WriteWindowsIcon(place) : WriteForDesktops(place);
    if (!written)
        std::cerr << "draw-icon: could not write " << words[1] << std::endl;
    return written ? EXIT_SUCCESS : EXIT_FAILURE;
}
