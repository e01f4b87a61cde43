#pragma once

#include "family/business/appointments/appointment_input.hpp"
#include "family/data/stores/appointment_rows.hpp"

#include <span>

namespace kova::family {

class Database;

/// A part of an appointment that is changed, taken over and refused as a whole.
struct AppointmentField {
    /// As the record forms call it.
    const char* caption;
    bool (*same)(const AppointmentInput& one, const AppointmentInput& other);
    void (*take)(AppointmentInput& to, const AppointmentInput& from);
    /// For people; empty where nothing is there.
    std::string (*show)(Database& database, const AppointmentInput& input);
};

/// Every part, in the order of the forms.
std::span<const AppointmentField> AppointmentFields();

/// What a record form would send for a stored appointment that nobody has changed.
AppointmentInput InputOf(const AppointmentRow& row);

/// The same input with its values written in one way, so that two can be compared.
AppointmentInput Comparable(AppointmentInput input);

} // namespace kova::family
