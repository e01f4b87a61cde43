#pragma once

#include "agenda/contracts/platform.hpp"
#include "host/session/news_of_desks.hpp"
#include "host/timetable/agenda_screens.hpp"
#include "host/timetable/free_place_finder.hpp"
#include "host/timetable/waiting_desk.hpp"
#include "timetable/commands.hpp"
#include "timetable/timetable_page.hpp"

#include <QPointer>

#include <string>

class QWidget;

namespace kova::host {

class MainWindow;
class UserChange;

/// The timetable's tab, "Horários", over a connection of its own to the shop at that source, which is opened
/// when the tab is turned to for the first time. Ctrl+T, and an entry of the menu, lead to it. What can be
/// done there the agenda's own screens do.
class TimetableTab {
public:
    /// `user` and `clock` say who writes, and when. All must outlive the window.
    TimetableTab(std::string source, ObjectRef user, const Clock& clock, UserChange& change,
                 toolkit::ToolkitModel& toolkit);

    void AddTo(MainWindow& window);
    /// What was written at this desk or another: the timetable shows it, and where this desk has freed a
    /// place it says who waits for such a one.
    void Hear(const DeskNews& news);

private:
    QWidget* MakePage(QWidget& parent);
    bool IsOnShow(const DeskNews& news) const;
    timetable::Commands MakeCommands();
    timetable::Command OfRow(const char* text, const RowCommand& command);

    std::string source_;
    ObjectRef user_;
    const Clock& clock_;
    UserChange& change_;
    AgendaScreens agenda_;
    FreePlaceFinder finder_;
    WaitingDesk waiting_;
    MainWindow* window_ = nullptr;
    int tab_ = 0;
    /// Null before the page is made, and when it has gone.
    QPointer<timetable::TimetablePage> page_;
};

} // namespace kova::host
