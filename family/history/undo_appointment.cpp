#include "family/history/undo_appointment.hpp"

#include "family/business/appointments/appointment_fields.hpp"
#include "family/business/appointments/appointment_restoration.hpp"
#include "family/business/appointments/appointment_writes.hpp"
#include "family/business/appointments/pre_sale_rules.hpp"
#include "family/business/appointments/status_change.hpp"
#include "family/data/audit/audit.hpp"
#include "family/data/audit/audited_row.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/stores/appointment_status.hpp"
#include "family/history/changes.hpp"
#include "family/users/user_rights.hpp"

#include <algorithm>

namespace kova::family::history {

namespace {

bool IsOfStatusAlone(const Line& line)
{
    return ChangedColumns(line.audit) == std::vector<std::string>{"situacao"};
}

/// The stored row, and as it will be.
struct Rows {
    AppointmentRow stored, wanted;
};

std::string ReadRows(Database& database, const Line& line, Rows& rows)
{
    const auto stored = FindByKey<AppointmentRow>(database, line.key);
    if (!stored)
        return "O agendamento não existe mais: foi excluído. Desfaça antes a exclusão.";
    rows = {*stored, *stored};
    AppointmentRow left = *stored;
    if (!TakeColumns(ChangedPart(line.audit, line.audit.after), left)
        || !TakeColumns(ChangedPart(line.audit, line.audit.before), rows.wanted)
        || ChangedPart(line.audit, line.audit.before).empty())
        return "Esta linha não diz tudo que havia antes.";
    if (ValuesOf(left).Line() != ValuesOf(*stored).Line())
        return "Não está mais como esta alteração deixou: outro programa o mudou. Mude-o à mão.";
    return {};
}

/// Rights that the write itself asks for, asked before it is offered.
std::string WhyNoRight(Database& database, const Author& author, const Line& line, const Rows& rows)
{
    std::vector<Right> rights;
    const bool cancels = rows.wanted.situacao == appointment_status::Cancelled
        && rows.stored.situacao != appointment_status::Cancelled;
    if (cancels)
        rights.push_back(Right::CancelAppointments);
    if (!cancels || !IsOfStatusAlone(line))
        rights.push_back(Right::ChangeAppointments);
    if (UndoesPreSale(rows.stored, rows.wanted))
        rights.push_back(Right::UndoPreSales);
    for (const Right right : rights) {
        if (std::string why = WhyDenied(database, author, right); !why.empty())
            return why;
    }
    return {};
}

/// What was checked before stays what the write goes by: what others change in between it finds by the
/// version.
std::shared_ptr<const RowVersions::Selection> KeepVersion(Database& database, const AppointmentRow& row)
{
    return database.Versions().Keep({{row.numero, row.versao}});
}

WriteAnswer PutBack(Database& database, const Author& author, const Line& line, const Rows& rows)
{
    const auto kept = KeepVersion(database, rows.stored);
    if (IsOfStatusAlone(line))
        return ChangeStatus(database, line.key, rows.wanted.situacao, author);
    AppointmentInput input = InputOf(rows.wanted);
    // Whoever booked it for that day has answered what there was to ask about it.
    input.validated = true;
    return AlterAppointment(database, input, author);
}

} // namespace

UndoPlan PlanUndoOfAppointment(Database& database, const Author& author, const Line& line)
{
    if (line.audit.operation == audit_operation::Removal) {
        std::string why = WhyDenied(database, author, Right::Book);
        return {std::move(why),
                "O agendamento " + std::to_string(line.key) + " volta para a agenda como estava."};
    }
    Rows rows;
    for (std::string why : {ReadRows(database, line, rows), WhyNoRight(database, author, line, rows)}) {
        if (!why.empty())
            return {std::move(why)};
    }
    return {{}, WhatComesBack(database, author, line)};
}

std::string UndoInAppointment(Database& database, const Author& author, const Line& line)
{
    if (line.audit.operation == audit_operation::Removal)
        return RestoreAppointment(database, line.key, author).text;
    Rows rows;
    if (std::string why = ReadRows(database, line, rows); !why.empty())
        return why;
    const WriteAnswer answer = PutBack(database, author, line, rows);
    return answer.IsDone() ? "" : answer.text;
}

} // namespace kova::family::history
