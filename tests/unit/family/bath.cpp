#include "tests/unit/family/bath.hpp"

namespace kova::family::test {

AppointmentInput Bath(const Text& date)
{
    AppointmentInput input;
    input.kind = AppointmentInput::SimplifiedKind;
    input.status = 1;
    input.serviceType = 4;
    input.service = 2;
    input.employee = 2;
    input.customerName = "Íris";
    input.animalName = "Bidu";
    input.startDate = input.endDate = date;
    input.startTime = "09:00";
    input.endTime = "10:00";
    return input;
}

} // namespace kova::family::test
