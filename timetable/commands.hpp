#pragma once

#include "agenda/contracts/date_time.hpp"
#include "family/data/engine/key.hpp"

#include <QKeySequence>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace kova::timetable {

/// What the cursor stands on.
struct Target {
    /// The appointment's, and the day on which it begins; 0 where none lies there.
    family::Key number = 0;
    family::Key employee = 0;
    DateTime when;
};

/// Something that can be done with it: an entry of the menu, a key, or both.
struct Command {
    enum class Needs { Nothing, Place, Appointment };

    /// With "&" before its letter.
    QString text;
    QKeySequence keys;
    Needs needs = Needs::Appointment;
    /// Answers what the user is told of it; "" is nothing. The timetable is read anew afterwards.
    std::function<QString(const Target& target)> run;
    /// Why the user may not do it, as a sentence; empty where he may.
    std::function<QString()> why = [] { return QString(); };
    /// A submenu, which those of the same text share; "" is none.
    QString group{};
    /// Whether a line stands before it.
    bool beginsPart = false;
};

using Commands = std::vector<Command>;

} // namespace kova::timetable
