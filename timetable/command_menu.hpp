#pragma once

#include "timetable/commands.hpp"

#include <QObject>

class QAction;
class QMenu;
class QPoint;
class QWidget;

namespace kova::timetable {

/// The commands as actions of a page: their keys from anywhere in it, and a menu of those that make sense
/// where the cursor stands. A group has a submenu.
class CommandMenu : public QObject {
public:
    /// `target` says where the cursor stands; `told` takes what a command has answered, after each.
    CommandMenu(QWidget& page, Commands commands, std::function<std::optional<Target>()> target,
                std::function<void(const QString& told)> told);

    void Open(const QPoint& at);
    /// Does the first one that is for what the cursor stands on, as Enter does.
    void RunFirst();

private:
    bool Fits(const Command& command, const Target& target) const;
    void Run(const Command& command);
    void AddEntry(QMenu& menu, const Command& command);

    QWidget& page_;
    const Commands commands_;
    const std::function<std::optional<Target>()> target_;
    const std::function<void(const QString&)> told_;
};

} // namespace kova::timetable
