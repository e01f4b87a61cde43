#pragma once

#include <QString>

#include <filesystem>
#include <functional>

class QUrl;

namespace kova::host {

class MainWindow;

/// The guide's page, beside the program.
std::filesystem::path GuideFile();

/// Where the guide tells about a tab: the id of a heading, "" for its beginning.
QString GuideSection(const QString& tab);

/// Hands a page to the desktop's reader; false where there is none.
using OpenPage = std::function<bool(const QUrl& page)>;
bool OpenOnDesktop(const QUrl& page);

/// Puts "Ajuda" into the window's menu, which opens the guide at the tab that is turned to, by Ctrl+F1 as
/// well. F1 does the same where it does not list the keys, as it does in the day's list. Where the guide
/// cannot be opened a notice says where it lies.
void AddHelp(MainWindow& window, const std::filesystem::path& guide, OpenPage open);

} // namespace kova::host
