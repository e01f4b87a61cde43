#include "family/business/appointments/appointment_writes.hpp"

#include "family/business/appointments/appointment_merge.hpp"
#include "family/business/appointments/booking.hpp"
#include "family/business/appointments/pre_sale_rules.hpp"
#include "family/business/appointments/status_rights.hpp"
#include "family/business/appointments/write_in_transaction.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/stores/appointment_status.hpp"
#include "family/data/stores/appointment_store.hpp"
#include "family/users/user_rights.hpp"

namespace kova::family {

namespace {

/// The status of an appointment that is not written yet.
constexpr int NoStatus = 0;

/// What the rules on pre-sales need of an appointment that had that status before.
AppointmentState StateOf(const Booking& booking, Key number, int statusBefore)
{
    AppointmentState state;
    state.number = number;
    state.status = statusBefore;
    state.serviceType = booking.row.numeroDoTipoDeServico;
    state.customer = booking.row.codigoDoCliente;
    state.priceInCents = booking.service.priceInCents;
    return state;
}

bool FormsPackage(const Booking& booking)
{
    return booking.Repeats() && booking.service.IsPackage() && booking.times.size() > 1;
}

WriteAnswer AddEach(Booking& booking, const Author& author)
{
    if (FormsPackage(booking))
        booking.row.codigoDoPacote = AddPackage(booking.database, booking.service.code, author);
    for (const TimeSpan& span : booking.times) {
        const Key number = AddAppointment(booking.database, booking.At(span), author);
        const WriteAnswer answer = FollowWithPreSale(booking.database, StateOf(booking, number, NoStatus),
                                                     booking.row.situacao, author);
        if (!answer.IsDone())
            return answer;
    }
    return {};
}

WriteAnswer WriteOver(Database& database, const AppointmentRow& stored, AppointmentInput input,
                      const Author& author)
{
    if (const Refusal refusal = MergeIntoInput(database, stored, input))
        return *refusal;
    Booking booking(database, input, stored);
    if (const Refusal refusal = Check(booking))
        return *refusal;
    if (booking.row.situacao != stored.situacao)
        RequireRightToStatus(database, author, stored.situacao, booking.row.situacao);
    if (UndoesPreSale(stored, booking.row))
        RequireRight(database, author, Right::UndoPreSales);
    const auto follow = SellsOtherwise(stored, booking.row) ? RenewPreSale : FollowWithPreSale;
    WriteAnswer answer =
        follow(database, StateOf(booking, stored.numero, stored.situacao), booking.row.situacao, author);
    if (answer.IsDone())
        ReplaceAppointment(database, stored, booking.At(booking.times.front()), author);
    answer.appointmentStatus = booking.row.situacao;
    return answer;
}

/// Finds the appointment with that number and runs `write` with it, both under the lock of one transaction.
template <class Write>
WriteAnswer WithStored(Database& database, Double number, const Author& author, Right right, Write write)
{
    return InTransaction(database, author, [&]() -> WriteAnswer {
        RequireRight(database, author, right);
        const auto stored = FindByKey<LockedAppointmentRow>(database, KeyOf(number));
        if (!stored)
            return WriteAnswer::Refusal("O agendamento não existe mais.");
        WriteAnswer answer = write(*stored);
        answer.package = stored->codigoDoPacote.ValueOr(0);
        return answer;
    });
}

} // namespace

WriteAnswer AddAppointments(Database& database, const AppointmentInput& input, const Author& author)
{
    return InTransaction(database, author, [&]() -> WriteAnswer {
        RequireRight(database, author, Right::Book);
        Booking booking(database, input);
        if (const Refusal refusal = Check(booking))
            return *refusal;
        return AddEach(booking, author);
    });
}

WriteAnswer AlterAppointment(Database& database, const AppointmentInput& input, const Author& author)
{
    Key before = 0;
    WriteAnswer answer = WithStored(database, input.number, author, Right::ChangeAppointments,
                                    [&](const AppointmentRow& stored) {
                                        before = stored.versao;
                                        return WriteOver(database, stored, input, author);
                                    });
    if (answer.IsDone()) {
        answer.version = before + 1;
        database.Versions().Follow(KeyOf(input.number), before, answer.version);
    }
    return answer;
}

WriteAnswer DeleteAppointment(Database& database, const AppointmentInput& input, const Author& author)
{
    const auto remove = [&](const AppointmentRow& stored) -> WriteAnswer {
        if (const Refusal refusal = CheckUnchanged(database, stored))
            return *refusal;
        WriteAnswer answer = CheckNoPreSale(database, stored.numero, stored.situacao);
        if (answer.IsDone())
            RemoveAppointment(database, stored, author);
        answer.appointmentStatus = stored.situacao;
        return answer;
    };
    return WithStored(database, input.number, author, Right::DeleteAppointments, remove);
}

} // namespace kova::family
