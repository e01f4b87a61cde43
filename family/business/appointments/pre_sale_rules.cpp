#include "family/business/appointments/pre_sale_rules.hpp"

#include "family/data/stores/appointment_rows.hpp"
#include "family/data/stores/appointment_status.hpp"
#include "family/data/stores/pre_sales.hpp"

#include <tuple>

namespace kova::family {

namespace {

/// Service types below this one are clinical.
constexpr Key FirstTypeThatSells = 4;

constexpr const char* StatusIsBilled =
    "Não é possível alterar a situação: a pré-venda deste agendamento já foi faturada.";
constexpr const char* AppointmentIsBilled = "Não é possível alterar um agendamento com pré-venda faturada.";

WriteAnswer MakePreSale(Database& database, const AppointmentState& appointment, const Author& author)
{
    if (appointment.serviceType < FirstTypeThatSells)
        return WriteAnswer::Refusal("Não é possível gerar pré-venda para serviços tipo clínico.");
    if (appointment.customer.IsNull())
        return WriteAnswer::Refusal("Não é possível gerar pré-venda para agendamento simplificado.");
    CreatePreSale(database, appointment.number, appointment.priceInCents, author);
    return {};
}

/// Refused with that text where one was billed.
WriteAnswer UndoPreSale(Database& database, Key appointment, const char* refusal, const Author& author)
{
    for (const PreSale& preSale : FindPreSales(database, appointment)) {
        if (preSale.status == pre_sale_status::Billed || !CancelPreSale(database, preSale, author))
            return WriteAnswer::Refusal(refusal);
    }
    return {};
}

} // namespace

bool SellsOtherwise(const AppointmentRow& before, const AppointmentRow& after)
{
    const auto sold = [](const AppointmentRow& row) {
        return std::tuple(row.numeroDoTipoDeServico, row.codigoDoServico, row.codigoDoCliente.ValueOr(0),
                          row.codigoDoAnimal.ValueOr(0));
    };
    return sold(before) != sold(after);
}

bool UndoesPreSale(const AppointmentRow& before, const AppointmentRow& after)
{
    return before.situacao == appointment_status::PreSaleGenerated
        && (after.situacao != appointment_status::PreSaleGenerated || SellsOtherwise(before, after));
}

WriteAnswer FollowWithPreSale(Database& database, const AppointmentState& appointment, int status,
                              const Author& author)
{
    const bool had = appointment.status == appointment_status::PreSaleGenerated;
    const bool has = status == appointment_status::PreSaleGenerated;
    if (had == has)
        return {};
    return has ? MakePreSale(database, appointment, author)
               : UndoPreSale(database, appointment.number, StatusIsBilled, author);
}

WriteAnswer RenewPreSale(Database& database, const AppointmentState& appointment, int status,
                         const Author& author)
{
    const WriteAnswer undone = UndoPreSale(database, appointment.number, AppointmentIsBilled, author);
    if (!undone.IsDone() || status != appointment_status::PreSaleGenerated)
        return undone;
    return MakePreSale(database, appointment, author);
}

WriteAnswer CheckNoPreSale(Database& database, Key appointment, int status)
{
    if (status != appointment_status::PreSaleGenerated && FindPreSales(database, appointment).empty())
        return {};
    return WriteAnswer::Refusal("Não é possível excluir um agendamento com pré-venda gerada.");
}

} // namespace kova::family
