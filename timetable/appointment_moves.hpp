#pragma once

#include "family/business/appointments/appointment_move.hpp"
#include "family/business/places/timetable.hpp"
#include "timetable/desk.hpp"

#include <QString>

#include <vector>

class QWidget;

namespace kova::timetable {

/// Where a block of a column goes.
struct NewPlace {
    const family::TimetableColumn& column;
    family::PartOfDay part;
};

/// What was done, for the user, and to which appointment on what day; "" and 0 where nothing was.
struct MoveOutcome {
    QString told;
    family::Key number = 0;
    Date date;
};

/// Moves appointments to other times and employees, and back. Every change is asked about before it is
/// written, and a refusal shown with its reason; what is not written has changed nothing.
class AppointmentMoves {
public:
    /// Questions open over the widget, which must outlive it.
    AppointmentMoves(const Desk& desk, QWidget& over) : desk_(desk), over_(over) { }

    MoveOutcome Move(const family::TimetableColumn& from, const family::TimetableBlock& block,
                     const NewPlace& to);
    /// The last one that is not taken back; the next time the one before it.
    MoveOutcome TakeBack();

private:
    struct Done {
        family::AppointmentMove back;
        QString what;
    };

    /// The version that was written; 0 where nothing was.
    family::Key Write(family::AppointmentMove move);

    const Desk& desk_;
    QWidget& over_;
    std::vector<Done> done_;
};

} // namespace kova::timetable
