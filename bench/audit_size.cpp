// What the audit of a shop takes on the disk where each appointment is booked and changes its status twice,
// against one gigabyte for each million of appointments. Makes the shop: a file, or the tables of an empty
// database on a server. Usage: bench_audit_size FILE|ADDRESS APPOINTMENTS

#include "bench/measure.hpp"
#include "family/data/audit/audit.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/engine/server_connection.hpp"
#include "family/data/engine/write_transaction.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/appointment_rows.hpp"
#include "family/data/stores/appointment_status.hpp"
#include "family/demo/shop.hpp"

#include <algorithm>
#include <iostream>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

namespace kova::bench {

namespace {

using family::Author;
using family::Key;
namespace appointment_status = family::appointment_status;

constexpr double LimitOfFile = 0.9, LimitOfServer = 1.3;
constexpr Date Today{2026, 11, 20};
constexpr long long AppointmentsOfACustomer = 20;
constexpr std::size_t WritesInATransaction = 1000;
constexpr double MegabytesOfGigabyte = 1000;

/// A write of an appointment. A shop's are not in the order of their appointments.
struct Event {
    std::string moment;
    Key appointment = 0;
    /// Booked is the addition.
    int status = appointment_status::Booked;
};

std::vector<Event> EventsOf(family::Database& database)
{
    std::vector<Event> events;
    Key number = 0;
    std::string booked, day, begin, end;
    soci::statement statement =
        (database.Session().prepare << "select numero, incluido_em, data_inicial, hora_inicial, hora_final"
                                       " from agendamento",
         soci::into(number), soci::into(booked), soci::into(day), soci::into(begin), soci::into(end));
    statement.execute();
    while (statement.fetch()) {
        events.push_back({booked, number, appointment_status::Booked});
        events.push_back({day + " " + begin + ":17", number, appointment_status::Cancelled});
        events.push_back({day + " " + end + ":42", number, appointment_status::Attended});
    }
    std::ranges::sort(events, {},
                      [](const Event& event) { return std::tie(event.moment, event.appointment); });
    return events;
}

void Write(family::Database& database, const Event& event)
{
    const auto row = family::FindByKey<family::AppointmentRow>(database, event.appointment);
    const Key user = event.appointment % 3 + 1;
    const Author author{std::to_string(user), row->incluidoPor, event.moment, "RECEPCAO-1"};
    if (event.status != appointment_status::Booked) {
        family::WriteStatus(database, *family::FindAppointment(database, event.appointment), event.status,
                            author);
        return;
    }
    family::AppointmentRow booked = *row;
    booked.situacao = appointment_status::Booked;
    booked.alteradoEm = booked.alteradoPor = {};
    family::AuditInsertion(database, author, family::AppointmentRow::Table, booked.numero, ValuesOf(booked));
}

void WriteAll(family::Database& database, const std::vector<Event>& events)
{
    database.Session() << "update agendamento set situacao = 1, alterado_em = null, alterado_por = null";
    for (std::size_t at = 0; at < events.size();) {
        family::WriteTransaction transaction(database);
        for (const std::size_t end = std::min(at + WritesInATransaction, events.size()); at < end; ++at)
            Write(database, events[at]);
        transaction.Commit();
    }
}

struct Part {
    std::string name;
    long long bytes = 0;
};

/// Tables and indexes of the audit.
std::vector<Part> PartsOf(family::Database& database)
{
    const char* const ofFile = "select name, sum(pgsize) from dbstat where name like '%auditoria%' or"
                               " name like 'elo_%' group by name order by 2 desc";
    const char* const ofServer =
        "select cast(relname as text), pg_relation_size(oid) from pg_class where relkind in ('r', 'i')"
        " and (relname like '%auditoria%' or relname like 'elo_%') order by 2 desc";
    std::vector<Part> parts;
    Part part;
    soci::statement statement =
        (database.Session().prepare << (database.GetDialect().IsServer() ? ofServer : ofFile),
         soci::into(part.name), soci::into(part.bytes));
    statement.execute();
    while (statement.fetch())
        parts.push_back(part);
    return parts;
}

void Measure(const std::string& source, long long appointments)
{
    const auto customers = static_cast<int>(std::max(appointments / AppointmentsOfACustomer, 1LL));
    family::CreateShop(source, family::MeasuringPlan(Today, customers, appointments));
    const std::vector<Event> events = EventsOf(*family::OpenDatabase(source));
    WriteAll(*family::OpenDatabase(source), events);
    long long bytes = 0;
    std::string told;
    for (const Part& part : PartsOf(*family::OpenForReading(source))) {
        bytes += part.bytes;
        told += (told.empty() ? "" : ", ") + part.name + " " + std::to_string(part.bytes / appointments);
    }
    const double perAppointment = static_cast<double>(bytes) / static_cast<double>(appointments);
    const bool isServer = family::IsServer(source);
    const std::string where = isServer ? " on a server" : "";
    // As many megabytes for a million as bytes for one.
    PrintLine("(n) audit of 1,000,000" + where, {perAppointment, MegabytesOfGigabyte}, "MB",
              isServer ? LimitOfServer : LimitOfFile);
    PrintNote("(n) bytes of an appointment's audit" + where + ": " + told);
}

} // namespace

} // namespace kova::bench

int main(int count, char** words)
{
    if (count != 3) {
        std::cerr << "usage: bench_audit_size FILE|ADDRESS APPOINTMENTS" << std::endl;
        return 2;
    }
    try {
        kova::bench::Measure(words[1], std::stoll(words[2]));
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << "bench_audit_size: " << failure.what() << std::endl;
        return 1;
    }
}
