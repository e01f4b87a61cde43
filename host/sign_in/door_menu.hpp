#pragma once

namespace kova::host {

class Door;
class MainWindow;

/// Puts what there is to do with users into the menu of the window: in a shop that has users another user,
/// the lock and one's own password, in one that has none how to begin with them, unless `mayBegin` is false.
/// The door must outlive the window's events.
void AddDoorToMenu(Door& door, MainWindow& window, bool mayBegin);

} // namespace kova::host
