#include "family/business/status_change.hpp"

#include "family/business/pre_sale_rules.hpp"
#include "family/business/write_in_transaction.hpp"
#include "family/data/appointment_status.hpp"

#include <optional>

namespace kova::family {

namespace {

WriteAnswer Change(Database& database, const AppointmentState& appointment, int status, const Author& author)
{
    WriteAnswer answer = FollowWithPreSale(database, appointment, status, author);
    if (answer.IsDone())
        WriteStatus(database, appointment, status, author);
    answer.package = appointment.package.ValueOr(0);
    return answer;
}

/// `package` 0 is none.
WriteAnswer ChangePackage(Database& database, Key package, int status, const Author& author)
{
    if (package == 0)
        return WriteAnswer::Refusal("O agendamento não pertence a um pacote.");
    WriteAnswer answer;
    for (const AppointmentState& appointment : FindUnattendedOfPackage(database, package)) {
        if (appointment.status != status)
            answer = Change(database, appointment, status, author);
        if (!answer.IsDone())
            break;
    }
    answer.package = package;
    return answer;
}

/// Runs `write` in a transaction where there is such a status.
template <class Write> WriteAnswer WriteKnownStatus(Database& database, int status, Write write)
{
    if (!appointment_status::IsKnown(status))
        return WriteAnswer::InvalidField("Situacao", "Selecione a situação.");
    return InTransaction(database, write);
}

/// Finds the appointment and runs `change` with it, both under the lock of one transaction.
template <class ChangeOf> WriteAnswer WithStored(Database& database, Key number, int status, ChangeOf change)
{
    return WriteKnownStatus(database, status, [&]() -> WriteAnswer {
        const std::optional<AppointmentState> appointment = FindAppointment(database, number);
        if (!appointment)
            return WriteAnswer::Refusal("O agendamento não existe mais.");
        return change(*appointment);
    });
}

} // namespace

WriteAnswer ChangeStatus(Database& database, Key appointment, int status, const Author& author)
{
    return WithStored(database, appointment, status, [&](const AppointmentState& stored) {
        return Change(database, stored, status, author);
    });
}

WriteAnswer ChangeStatusOfPackage(Database& database, Key appointment, int status, const Author& author)
{
    return WithStored(database, appointment, status, [&](const AppointmentState& stored) {
        return ChangePackage(database, stored.package.ValueOr(0), status, author);
    });
}

WriteAnswer ChangeStatusInPackage(Database& database, Key package, int status, const Author& author)
{
    return WriteKnownStatus(database, status,
                            [&] { return ChangePackage(database, package, status, author); });
}

} // namespace kova::family
