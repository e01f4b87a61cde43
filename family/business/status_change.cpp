#include "family/business/status_change.hpp"

#include "family/data/appointment_status.hpp"
#include "family/data/pre_sales.hpp"
#include "family/data/write_transaction.hpp"

#include <optional>

namespace kova::family {

namespace {

/// Service types below this one are clinical.
constexpr Key FirstTypeThatSells = 4;

WriteAnswer MakePreSale(Database& database, const AppointmentState& appointment, const Author& author)
{
    if (appointment.serviceType < FirstTypeThatSells)
        return WriteAnswer::Refusal("Não é possível gerar pré-venda para serviços tipo clínico.");
    if (appointment.customer.IsNull())
        return WriteAnswer::Refusal("Não é possível gerar pré-venda para agendamento simplificado.");
    CreatePreSale(database, appointment.number, appointment.priceInCents, author);
    return {};
}

WriteAnswer UndoPreSale(Database& database, const AppointmentState& appointment, const Author& author)
{
    for (const PreSale& preSale : FindPreSales(database, appointment.number)) {
        if (preSale.status == pre_sale_status::Billed)
            return WriteAnswer::Refusal(
                "Não é possível alterar a situação: a pré-venda deste agendamento já foi faturada.");
        CancelPreSale(database, preSale, author);
    }
    return {};
}

WriteAnswer FollowWithPreSale(Database& database, const AppointmentState& appointment, int status,
                              const Author& author)
{
    const bool had = appointment.status == appointment_status::PreSaleGenerated;
    const bool has = status == appointment_status::PreSaleGenerated;
    if (had == has)
        return {};
    return has ? MakePreSale(database, appointment, author) : UndoPreSale(database, appointment, author);
}

WriteAnswer Change(Database& database, const AppointmentState& appointment, int status, const Author& author)
{
    WriteAnswer answer = FollowWithPreSale(database, appointment, status, author);
    if (answer.IsDone())
        WriteStatus(database, appointment, status, author);
    answer.inPackage = !appointment.package.IsNull();
    return answer;
}

WriteAnswer ChangePackage(Database& database, const AppointmentState& member, int status,
                          const Author& author)
{
    if (member.package.IsNull())
        return WriteAnswer::Refusal("O agendamento não pertence a um pacote.");
    WriteAnswer answer;
    answer.inPackage = true;
    for (const AppointmentState& appointment : FindUnattendedOfPackage(database, member.package.value)) {
        if (appointment.status != status)
            answer = Change(database, appointment, status, author);
        if (!answer.IsDone())
            break;
    }
    return answer;
}

/// Finds the appointment and runs `change` with it, both under the lock of one transaction.
template <class ChangeOf>
WriteAnswer InTransaction(Database& database, Key number, int status, ChangeOf change)
{
    if (status < appointment_status::Booked || status > appointment_status::PreSaleGenerated)
        return WriteAnswer::InvalidField("Situacao", "Selecione a situação.");
    WriteTransaction transaction(database);
    const std::optional<AppointmentState> appointment = FindAppointment(database, number);
    if (!appointment)
        return WriteAnswer::Refusal("O agendamento não existe mais.");
    WriteAnswer answer = change(*appointment);
    if (answer.IsDone())
        transaction.Commit();
    return answer;
}

} // namespace

WriteAnswer ChangeStatus(Database& database, Key appointment, int status, const Author& author)
{
    return InTransaction(database, appointment, status, [&](const AppointmentState& stored) {
        return Change(database, stored, status, author);
    });
}

WriteAnswer ChangeStatusOfPackage(Database& database, Key appointment, int status, const Author& author)
{
    return InTransaction(database, appointment, status, [&](const AppointmentState& stored) {
        return ChangePackage(database, stored, status, author);
    });
}

} // namespace kova::family
