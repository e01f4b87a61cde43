#include "family/business/appointments/booking.hpp"

#include "family/data/engine/iso_text.hpp"
#include "family/data/stores/appointment_status.hpp"

namespace kova::family {

Booking::Booking(Database& data, const AppointmentInput& typed, const AppointmentRow& stored)
    : database(data), input(typed), adds(false)
{
    row.numero = stored.numero;
    row.codigoDoPacote = stored.codigoDoPacote;
    if (stored.situacao != appointment_status::Cancelled)
        place = {stored.codigoDoFuncionario,
                 ReadIsoSpan(stored.dataInicial, stored.horaInicial, stored.dataFinal, stored.horaFinal)};
}

DaysOff Booking::RuleForDaysOff() const
{
    if (input.IsSimplified())
        return DaysOff::Keep;
    // Whoever picked the dates has been asked about each of them.
    if (!IsPicked() && !input.validated)
        return DaysOff::AskAbout;
    return input.toWorkingDay ? DaysOff::MoveAway : DaysOff::Keep;
}

AppointmentRow Booking::At(const TimeSpan& span) const
{
    AppointmentRow appointment = row;
    appointment.dataInicial = IsoDate(span.start.date);
    appointment.horaInicial = FormatTime(span.start.time);
    appointment.dataFinal = IsoDate(span.end.date);
    appointment.horaFinal = FormatTime(span.end.time);
    return appointment;
}

} // namespace kova::family
