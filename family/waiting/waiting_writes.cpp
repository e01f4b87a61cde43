#include "family/waiting/waiting_writes.hpp"

#include "family/business/appointments/write_in_transaction.hpp"
#include "family/data/audit/stamp.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/stores/appointment_status.hpp"
#include "family/users/user_rights.hpp"
#include "family/waiting/waiting_checks.hpp"

#include <functional>
#include <optional>

namespace kova::family::waiting {

namespace {

constexpr std::size_t LengthOfDate = 10;

WaitingAnswer Told(const WriteAnswer& answer) { return {answer}; }

/// Who has written the row last, and when.
std::string LastWriteOf(const WaitingRow& row)
{
    return row.alteradoPor.ValueOr(row.incluidoPor) + " em "
        + ShownMoment(row.alteradoEm.ValueOr(row.incluidoEm));
}

/// What a user reads who wanted something else of it.
std::string WhatBecameOf(const WaitingRow& row)
{
    switch (row.situacao) {
    case waiting_status::BeingBooked:
        return "Este pedido da lista de espera está sendo marcado por " + LastWriteOf(row) + ".";
    case waiting_status::Booked:
        return "Este pedido da lista de espera já foi marcado por " + LastWriteOf(row) + " (agendamento "
            + std::to_string(row.numeroDoAgendamento.ValueOr(0)) + ").";
    case waiting_status::GivenUp:
        return "Este pedido da lista de espera foi encerrado por " + LastWriteOf(row)
            + ": o cliente desistiu.";
    default: return "Este pedido da lista de espera foi alterado por " + LastWriteOf(row) + ".";
    }
}

WaitingAnswer Refused(std::string text)
{
    return Told(WriteAnswer::Refusal(std::move(text) + " Nada foi gravado."));
}

WaitingAnswer Written(const WaitingRow& row)
{
    WaitingAnswer answer;
    answer.code = row.codigo;
    answer.version = row.versao;
    return answer;
}

/// Runs it in a transaction of its own, where the author has the right.
WaitingAnswer Write(Database& database, const Author& author, Right right,
                    const std::function<WaitingAnswer()>& write)
{
    WaitingAnswer last;
    const WriteAnswer answer = InTransaction(database, author, [&]() -> WriteAnswer {
        RequireRight(database, author, right);
        last = write();
        return last;
    });
    return answer.IsDone() ? last : Told(answer);
}

/// The same with the stored entry, locked.
WaitingAnswer WithStored(Database& database, Key code, const Author& author, Right right,
                         const std::function<WaitingAnswer(const WaitingEntry&)>& write)
{
    return Write(database, author, right, [&] {
        const std::optional<WaitingEntry> stored = LockWaiting(database, code);
        return stored ? write(*stored) : Refused("Este pedido da lista de espera não existe mais.");
    });
}

/// The same where it is as it was shown.
WaitingAnswer WithShown(Database& database, Key code, Key version, const Author& author, Right right,
                        const std::function<WaitingAnswer(const WaitingEntry&)>& write)
{
    return WithStored(database, code, author, right, [&](const WaitingEntry& stored) {
        return stored.row.versao == version ? write(stored) : Refused(WhatBecameOf(stored.row));
    });
}

WaitingAnswer SetStatus(Database& database, const WaitingRow& stored, int status, const Author& author)
{
    WaitingRow row = stored;
    row.situacao = status;
    return Written(ReplaceWaiting(database, stored, std::move(row), author));
}

std::string TodayOf(Database& database, const Author& author)
{
    return StampOfRow(database, author).substr(0, LengthOfDate);
}

/// What is wrong with that appointment in the place of what the customer waits for; empty where it fits.
std::string ObjectionTo(Database& database, Key appointment, const WaitingRow& row)
{
    const std::string name = "O agendamento " + std::to_string(appointment);
    const std::optional<AppointmentState> found = FindAppointment(database, appointment);
    if (!found)
        return name + " não existe.";
    if (found->customer.ValueOr(0) != row.codigoDoCliente)
        return name + " não é deste cliente.";
    return {};
}

} // namespace

bool IsInHand(const WaitingRow& row, const std::string& moment)
{
    if (row.situacao != waiting_status::BeingBooked || row.alteradoEm.IsNull())
        return false;
    const auto read = [](const std::string& text) {
        constexpr std::size_t LengthOfTime = 5;
        return ReadIsoMoment(text.substr(0, LengthOfDate), text.substr(LengthOfDate + 1, LengthOfTime));
    };
    return read(moment) < AddMinutes(read(row.alteradoEm.value), LongestInHand);
}

WaitingAnswer Add(Database& database, const WaitingEntry& entry, const Author& author)
{
    return Write(database, author, Right::Book, [&]() -> WaitingAnswer {
        const WriteAnswer check = CheckEntry(database, entry, TodayOf(database, author));
        if (!check.IsDone())
            return Told(check);
        WaitingEntry added = entry;
        added.row.situacao = waiting_status::Waiting;
        added.row.numeroDoAgendamento = {};
        added.row.versao = 1;
        added.row.codigo = AddWaiting(database, added, author);
        return Written(added.row);
    });
}

WaitingAnswer Change(Database& database, const WaitingEntry& entry, const Author& author)
{
    const auto change = [&](const WaitingEntry& stored) -> WaitingAnswer {
        if (!waiting_status::IsOpen(stored.row.situacao))
            return Refused(WhatBecameOf(stored.row));
        const WriteAnswer check = CheckEntry(database, entry, TodayOf(database, author));
        if (!check.IsDone())
            return Told(check);
        WaitingEntry changed = entry;
        changed.row.situacao = stored.row.situacao;
        changed.row.numeroDoAgendamento = stored.row.numeroDoAgendamento;
        return Written(ReplaceWaiting(database, stored, std::move(changed), author));
    };
    return WithShown(database, entry.row.codigo, entry.row.versao, author, Right::ChangeAppointments, change);
}

WaitingAnswer GiveUp(Database& database, Key code, Key version, const Author& author)
{
    return WithShown(database, code, version, author, Right::ChangeAppointments,
                     [&](const WaitingEntry& stored) {
                         return waiting_status::IsOpen(stored.row.situacao)
                             ? SetStatus(database, stored.row, waiting_status::GivenUp, author)
                             : Refused(WhatBecameOf(stored.row));
                     });
}

WaitingAnswer Take(Database& database, Key code, const Author& author)
{
    return WithStored(database, code, author, Right::Book, [&](const WaitingEntry& stored) {
        const bool isFree = waiting_status::IsOpen(stored.row.situacao)
            && !IsInHand(stored.row, StampOfRow(database, author));
        return isFree ? SetStatus(database, stored.row, waiting_status::BeingBooked, author)
                      : Refused(WhatBecameOf(stored.row));
    });
}

WaitingAnswer PutBack(Database& database, Key code, Key version, const Author& author)
{
    return WithShown(database, code, version, author, Right::Book, [&](const WaitingEntry& stored) {
        return stored.row.situacao == waiting_status::BeingBooked
            ? SetStatus(database, stored.row, waiting_status::Waiting, author)
            : Refused(WhatBecameOf(stored.row));
    });
}

WaitingAnswer MarkBooked(Database& database, Key code, Key version, Key appointment, const Author& author)
{
    return WithShown(database, code, version, author, Right::Book, [&](const WaitingEntry& stored) {
        if (!waiting_status::IsOpen(stored.row.situacao))
            return Refused(WhatBecameOf(stored.row));
        if (const std::string objection = ObjectionTo(database, appointment, stored.row); !objection.empty())
            return Refused(objection);
        WaitingRow row = stored.row;
        row.situacao = waiting_status::Booked;
        row.numeroDoAgendamento = appointment;
        return Written(ReplaceWaiting(database, stored.row, std::move(row), author));
    });
}

} // namespace kova::family::waiting
