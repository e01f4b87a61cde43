#pragma once

#include <QImage>
#include <QString>

class QIcon;

namespace kova::host {

/// The application's sign: a paw on a calendar's page, in the sizes that desktops show.
QIcon ApplicationIcon();

/// The same drawing as a picture of so many points, and as the text of an SVG file. Need no desktop.
QImage ApplicationPicture(int size);
QString ApplicationDrawing();

} // namespace kova::host
