#pragma once

#include "family/business/appointments/appointment_input.hpp"
#include "family/business/appointments/typed_times.hpp"
#include "family/data/stores/appointment_rows.hpp"
#include "family/data/stores/appointment_status.hpp"

namespace kova::family {

class Database;

/// What the writes do about an appointment that somebody else has written since this session selected it. All
/// of them run in the transaction that writes, with the stored row locked, and have nothing to say of a row
/// that the session never selected, or that is still as it was. They fail with a DatabaseFailure.

/// Brings what the others have changed into `input`, so that it tells of the whole appointment again. Field
/// by field (appointment_fields.hpp): what this user left alone is as it is stored, what only this user has
/// changed is as typed. Refused where both have changed a field, each in another way; the text says who,
/// when, and what stands there now.
Refusal MergeIntoInput(Database& database, const AppointmentRow& stored, AppointmentInput& input);

/// Refused where a field is not what this session has read; the text says who has changed it, and when.
Refusal CheckUnchanged(Database& database, const AppointmentRow& stored);

/// The answer to a change of the status alone where others have changed the status before: done where they
/// have set the same one, else refused with who and when. Nothing where the change is to be written.
std::optional<WriteAnswer> AnswerToChangedStatus(Database& database, const AppointmentState& stored,
                                                 int status);

} // namespace kova::family
