#pragma once

#include <filesystem>

class QWidget;

namespace kova::host {

/// Draws the window as it stands, once nothing waits to be drawn, into a PNG file; makes the file's
/// folder. It is for this user alone. Throws std::runtime_error with the path and the cause; a file that was
/// there is whole then.
void SavePicture(QWidget& window, const std::filesystem::path& file);

} // namespace kova::host
