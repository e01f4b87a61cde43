#pragma once

class QIcon;

namespace kova::host {

/// The application's sign: a paw on a calendar's page, in the sizes that desktops show.
QIcon ApplicationIcon();

} // namespace kova::host
