#pragma once

#include "tests/unit/family/business/appointments/booking_fixture.hpp"

#include "family/business/appointments/appointment_writes.hpp"
#include "family/data/stores/appointment_rows.hpp"

namespace kova::family::test {

/// Two desks on one shop. This one, Lia's, selects and writes through the component, as the screens do; the
/// other one, Marcos's, has a connection of its own and writes at 09:30 on 20/11/2026.
///
/// Appointment 24 is a bath of Paçoca by Bia and 25 a simplified one by Zeca, both on 01/12/2026 from 09:00
/// to 10:00 by Lia.
class TwoDesksTest : public BookingTest {
protected:
    TwoDesksTest();

    static constexpr Key FullNumber = 24, SimplifiedNumber = 25;
    static constexpr const char* Day = "01/12/2026";

    /// This desk's list shows that day from now on, as it is now.
    void Shows(const std::string& day = Day);
    /// What this desk's record form sends of an appointment of the day shown, before anything is typed into
    /// it.
    Desk Form(Key number);
    /// The other desk changes a stored appointment.
    void OtherChanges(Key number, const std::function<void(AppointmentInput&)>& change);
    void OtherSetsStatus(Key number, int status);
    void OtherDeletes(Key number);

    AppointmentRow Stored(Key number);
    /// The form answers 3, and nothing has changed. Answers the text.
    Text Refused(Component& form, const char* member = "Alterar");

    std::shared_ptr<Database> otherDesk_;
    const Author marcos_{"8", "Marcos", "2026-11-20 09:30:00", "BALCAO-2"};

private:
    Agenda list_{desk_};
};

} // namespace kova::family::test
