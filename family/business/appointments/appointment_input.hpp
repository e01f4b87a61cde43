#pragma once

#include "agenda/contracts/value.hpp"
#include "family/data/rows/rows.hpp"

namespace kova::family {

/// What a caller of clsAgenda has written into its properties; it stays from one write to the next.
struct AppointmentInput {
    /// Values of `frequency`.
    static constexpr Integer Weekly = 0, Fortnightly = 1, Monthly = 2;
    /// The value of `kind` that has typed texts in the place of customer and animal.
    static constexpr Long SimplifiedKind = 1;

    /// Most characters of the typed texts; the boxes of the screens are as wide.
    static constexpr std::size_t WidthOfName = 100, WidthOfRemark = 100, WidthOfText = 50;

    bool IsSimplified() const { return kind == SimplifiedKind; }

    Double number = 0;
    Long kind = 0;
    Long status = 0;
    Long serviceType = 0;
    Double service = 0;
    Long employee = 0;
    Text startDate, startTime, endDate, endTime;
    Text remark;

    // A full record.
    Double customer = 0;
    Long animal = 0;
    Long fetch = 0, take = 0;

    // A simplified one.
    Text customerName, customerChannels, animalName, animalSex, animalSpecies, animalBreed, animalColour;

    // Repetition of a full record that is added.
    bool picked = false;
    /// Start date, start time, end date and end time of each picked row; null where none were written.
    ArrayRef pickedRows;
    Long repetitions = 0;
    Integer frequency = -1;

    // What the user has answered about Sundays and holidays.
    bool validated = false;
    bool toWorkingDay = false;

    // A write of the status alone goes by the stored record, which another desk may have changed since the
    // caller read it: the status before is not looked at.
    bool onlyStatus = false;
    Integer statusNow = 0;
    Integer statusNew = 0;
};

/// The key that a number stands for; 0, which no record has, for one that cannot be a key.
Key KeyOf(Double number);

} // namespace kova::family
