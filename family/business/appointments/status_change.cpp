#include "family/business/appointments/status_change.hpp"

#include "family/business/appointments/appointment_merge.hpp"
#include "family/business/appointments/employee_room.hpp"
#include "family/business/appointments/pre_sale_rules.hpp"
#include "family/business/appointments/status_rights.hpp"
#include "family/business/appointments/write_in_transaction.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/stores/appointment_status.hpp"

#include <optional>
#include <set>
#include <vector>

namespace kova::family {

namespace {

/// What a transaction has written, each as it was before.
using Written = std::vector<AppointmentState>;

/// A cancelled appointment takes no room, which it needs again with every other status, and so its employee
/// at work.
bool ComesBack(const AppointmentState& appointment, int status)
{
    return appointment.status == appointment_status::Cancelled && status != appointment_status::Cancelled;
}

WriteAnswer CheckEmployee(Database& database, const AppointmentState& appointment)
{
    const Text objection = ObjectionToReturn(
        database, appointment.employee, appointment.number,
        ReadIsoSpan(appointment.startDate, appointment.startTime, appointment.endDate, appointment.endTime));
    return objection.empty() ? WriteAnswer() : WriteAnswer::Refusal(objection);
}

WriteAnswer Change(Database& database, const AppointmentState& appointment, int status, const Author& author,
                   Written& written)
{
    RequireRightToStatus(database, author, appointment.status, status);
    WriteAnswer answer = FollowWithPreSale(database, appointment, status, author);
    if (answer.IsDone() && ComesBack(appointment, status))
        answer = CheckEmployee(database, appointment);
    if (answer.IsDone()) {
        WriteStatus(database, appointment, status, author);
        written.push_back(appointment);
    }
    answer.package = appointment.package.ValueOr(0);
    answer.appointmentStatus = status;
    return answer;
}

/// Holds the employees whom the appointments come back to, in the order of their codes: two desks that held
/// them in an order of their own could wait for one another.
void HoldEmployees(Database& database, const std::vector<AppointmentState>& appointments, int status)
{
    std::set<Key> employees;
    for (const AppointmentState& appointment : appointments) {
        if (ComesBack(appointment, status))
            employees.insert(appointment.employee);
    }
    for (const Key employee : employees)
        FindByKey<BookedEmployee>(database, employee);
}

/// `package` 0 is none.
WriteAnswer ChangePackage(Database& database, Key package, int status, const Author& author, Written& written)
{
    if (package == 0)
        return WriteAnswer::Refusal("O agendamento não pertence a um pacote.");
    WriteAnswer answer;
    const std::vector<AppointmentState> appointments = FindUnattendedOfPackage(database, package);
    HoldEmployees(database, appointments, status);
    for (const AppointmentState& appointment : appointments) {
        if (appointment.status != status)
            answer = Change(database, appointment, status, author, written);
        if (!answer.IsDone())
            break;
    }
    answer.package = package;
    return answer;
}

/// Runs `write` in a transaction where there is such a status. What was written is then known to the session.
template <class Write>
WriteAnswer WriteKnownStatus(Database& database, int status, const Author& author, Write write)
{
    if (!appointment_status::IsKnown(status))
        return WriteAnswer::InvalidField("Situacao", "Selecione a situação.");
    Written written;
    const WriteAnswer answer = InTransaction(database, author, [&] {
        written.clear();
        return write(written);
    });
    for (const AppointmentState& before : answer.IsDone() ? written : Written())
        database.Versions().Follow(before.number, before.version, before.version + 1);
    return answer;
}

/// Finds the appointment and runs `change` with it, both under the lock of one transaction.
template <class ChangeOf>
WriteAnswer WithStored(Database& database, Key number, int status, const Author& author, ChangeOf change)
{
    return WriteKnownStatus(database, status, author, [&](Written& written) -> WriteAnswer {
        const std::optional<AppointmentState> appointment = FindAppointment(database, number);
        if (!appointment)
            return WriteAnswer::Refusal("O agendamento não existe mais.");
        return change(*appointment, written);
    });
}

} // namespace

WriteAnswer ChangeStatus(Database& database, Key appointment, int status, const Author& author)
{
    return WithStored(
        database, appointment, status, author, [&](const AppointmentState& stored, Written& written) {
            if (std::optional<WriteAnswer> answer = AnswerToChangedStatus(database, stored, status)) {
                answer->package = stored.package.ValueOr(0);
                answer->appointmentStatus = status;
                return *answer;
            }
            return Change(database, stored, status, author, written);
        });
}

WriteAnswer ChangeStatusOfPackage(Database& database, Key appointment, int status, const Author& author)
{
    return WithStored(database, appointment, status, author,
                      [&](const AppointmentState& stored, Written& written) {
                          return ChangePackage(database, stored.package.ValueOr(0), status, author, written);
                      });
}

WriteAnswer ChangeStatusInPackage(Database& database, Key package, int status, const Author& author)
{
    return WriteKnownStatus(database, status, author, [&](Written& written) {
        return ChangePackage(database, package, status, author, written);
    });
}

} // namespace kova::family
