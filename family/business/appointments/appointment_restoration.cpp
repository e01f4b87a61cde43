#include "family/business/appointments/appointment_restoration.hpp"

#include "family/business/appointments/employee_room.hpp"
#include "family/business/appointments/write_in_transaction.hpp"
#include "family/data/audit/archived_part.hpp"
#include "family/data/audit/audit.hpp"
#include "family/data/audit/audited_row.hpp"
#include "family/data/audit/merged_rows.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/people_rows.hpp"
#include "family/data/stores/appointment_status.hpp"
#include "family/data/stores/appointment_store.hpp"
#include "family/users/user_rights.hpp"

#include <type_traits>

namespace kova::family {

namespace {

/// Why an appointment cannot be restored; empty where it can.
using Obstacle = std::string;

WriteAnswer Refused(Key number, const Obstacle& obstacle)
{
    return WriteAnswer::Refusal("O agendamento " + std::to_string(number)
                                + " não pode ser restaurado: " + obstacle);
}

/// Whether the audit line is of a whole row: it has all numbers that are never Null but for the version,
/// which the oldest lines lack.
bool IsWhole(const AuditedColumns& columns)
{
    bool all = true;
    AppointmentRow().Columns([&](const std::string& column, const auto& field) {
        if constexpr (std::is_integral_v<std::decay_t<decltype(field)>>)
            all = all && (columns.contains(column) || column == "versao");
    });
    return all;
}

/// Where that row has become one with another since, the other's key.
template <class Row> void Follow(Database& database, Nullable<Key>& key)
{
    if (!key.IsNull())
        key = GoesOnAs(database, Row::Table, key.value);
}

/// The row as the last line of the audit says that it was deleted, for its customer and animal of today.
std::optional<AppointmentRow> DeletedRow(Database& database, Key number)
{
    const auto lines = FindAuditLines(database, AppointmentRow::Table, number, 1);
    AppointmentRow row;
    if (lines.empty() || lines.front().operation != audit_operation::Removal || !IsWhole(lines.front().before)
        || !TakeRow(lines.front().before, row))
        return std::nullopt;
    Follow<CustomerRow>(database, row.codigoDoCliente);
    Follow<AnimalRow>(database, row.codigoDoAnimal);
    return row;
}

/// `what` is the register's row with its article.
template <class Row> Obstacle Missing(Database& database, const Nullable<Key>& key, const char* what)
{
    if (key.IsNull() || FindByKey<Row>(database, key.value))
        return {};
    return std::string(what) + " " + std::to_string(key.value) + " não existe mais.";
}

Obstacle MissingReference(Database& database, const AppointmentRow& row)
{
    for (const Obstacle& missing :
         {Missing<BookedCustomer>(database, row.codigoDoCliente, "o cliente"),
          Missing<BookedAnimal>(database, row.codigoDoAnimal, "o animal"),
          Missing<BookedServiceType>(database, row.numeroDoTipoDeServico, "o tipo de serviço"),
          Missing<BookedService>(database, row.codigoDoServico, "o serviço"),
          Missing<BookedEmployee>(database, row.codigoDoFuncionario, "o(a) funcionário(a)"),
          Missing<PackageRow>(database, row.codigoDoPacote, "o pacote")}) {
        if (!missing.empty())
            return missing;
    }
    return {};
}

Obstacle ObjectionOfEmployee(Database& database, const AppointmentRow& row)
{
    if (row.situacao == appointment_status::Cancelled)
        return {};
    return ObjectionToReturn(database, row.codigoDoFuncionario, row.numero,
                             ReadIsoSpan(row.dataInicial, row.horaInicial, row.dataFinal, row.horaFinal));
}

Obstacle WithArchive(Obstacle obstacle, const std::string& archive)
{
    if (!archive.empty())
        obstacle.append(" ").append(archive).append(" O que está nele não pode mais ser restaurado.");
    return obstacle;
}

WriteAnswer Restore(Database& database, Key number, const Author& author)
{
    if (FindByKey<AppointmentRow>(database, number))
        return Refused(number, "ele existe.");
    const std::optional<AppointmentRow> row = DeletedRow(database, number);
    if (!row)
        return Refused(number, WithArchive("não há registro da exclusão dele.", ToldArchive(database)));
    for (const auto obstacle : {MissingReference, ObjectionOfEmployee}) {
        if (const Obstacle found = obstacle(database, *row); !found.empty())
            return Refused(number, found);
    }
    RestoreRow(database, *row, author);
    return {};
}

} // namespace

WriteAnswer RestoreAppointment(Database& database, Key number, const Author& author)
{
    return InTransaction(database, author, [&] {
        RequireRight(database, author, Right::Book);
        return Restore(database, number, author);
    });
}

} // namespace kova::family
