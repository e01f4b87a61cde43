#pragma once

#include "agenda/contracts/platform.hpp"
#include "host/timetable/agenda_screens.hpp"
#include "host/timetable/free_place_finder.hpp"
#include "waiting/waiting_dialog.hpp"

#include <memory>
#include <optional>
#include <string>

namespace kova::host {

class MainWindow;

/// The waiting list (Ctrl+E), and who fits where a place was freed. Whoever is booked is taken in hand first,
/// so that no other desk books him as well, and is put back where the form is left without saving. It works
/// by a connection of its own, which is opened when it is needed for the first time.
class WaitingDesk {
public:
    /// All must outlive the window.
    WaitingDesk(std::string source, ObjectRef user, const Clock& clock, AgendaScreens& agenda,
                FreePlaceFinder& finder);

    void AddTo(MainWindow& window);
    /// This desk has written that appointment: where a place was freed by it for somebody who waits, a quiet
    /// line says so, and Ctrl+E shows who fits.
    void LookAtFreed(family::Key appointment);

private:
    waiting::Desk OpenDesk();
    void Open();
    void OpenList();
    void OpenFits(const family::waiting::FreedPlace& freed);
    /// Answers what was done, for the user; "" where nothing was.
    QString Book(const waiting::Waiter& waiter);
    QString BookAt(const family::waiting::WaitingFit& fit, int sessions, int weeks);

    const std::string source_;
    const ObjectRef user_;
    const Clock& clock_;
    AgendaScreens& agenda_;
    FreePlaceFinder& finder_;
    MainWindow* window_ = nullptr;
    std::shared_ptr<family::Database> database_;
    /// The last place that was freed and that somebody waits for.
    std::optional<family::waiting::FreedPlace> freed_;
};

} // namespace kova::host
