#include "tests/monkey/other_desk.hpp"

#include "family/business/appointments/appointment_fields.hpp"
#include "family/business/appointments/appointment_writes.hpp"
#include "family/business/appointments/status_change.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/users/accounts.hpp"

#include <exception>
#include <string>
#include <vector>

namespace kova::monkey {

namespace {

family::Key Number(soci::session& session, const std::string& selection)
{
    family::Key number = 0;
    session << selection, soci::into(number);
    return number;
}

std::vector<family::Key> AppointmentsOfTheDay(soci::session& session)
{
    std::vector<family::Key> keys(500);
    session << "select numero from agendamento where data_inicial = '2026-11-20' order by numero",
        soci::into(keys);
    return keys;
}

} // namespace

void OtherDesk::Does(const std::string& what, int which)
{
    try {
        if (!database_)
            database_ = family::OpenDatabase(path_);
        if (what == "book")
            return Book();
        if (what.starts_with("role "))
            return GiveRole(what.back() - '0');
        const auto keys = AppointmentsOfTheDay(database_->Session());
        if (!keys.empty())
            Act(what, keys[keys.size() * static_cast<std::size_t>(which) / 1000]);
    } catch (const std::exception&) {
        // The file may be held by the first desk at this moment.
    }
}

void OtherDesk::Book()
{
    soci::session& session = database_->Session();
    family::AppointmentInput input;
    input.status = 1;
    input.customer = 10;
    input.animal = 14;
    input.serviceType = 4;
    input.service = static_cast<Double>(
        Number(session,
               "select min(codigo) from servico where numero_do_tipo_de_servico = 4 and situacao = 1"
               " and quantidade_de_sessoes is null"));
    input.employee =
        static_cast<Long>(Number(session, "select max(codigo) from funcionario where situacao = 1"));
    input.startDate = input.endDate = "20/11/2026";
    input.startTime = "20:00";
    input.endTime = "20:45";
    input.remark = "Laço azul.";
    input.validated = true;
    AddAppointments(*database_, input, author_);
}

void OtherDesk::GiveRole(family::Key role)
{
    const family::Author owner{.code = "0", .name = "Dono", .moment = "2026-11-20 09:30:00", .isOwner = true};
    const family::Key lia = Number(database_->Session(),
                                   "select coalesce(min(codigo), 0) from usuario where nome = 'Lia'"
                                   " and codigo_do_papel is not null");
    if (lia != 0)
        SaveAccount(*database_, {lia, "Lia", role, true}, nullptr, owner);
}

void OtherDesk::Act(const std::string& what, family::Key appointment)
{
    if (what.starts_with("status ")) {
        ChangeStatus(*database_, appointment, what.back() - '0', author_);
        return;
    }
    const auto row = family::FindByKey<family::AppointmentRow>(*database_, appointment);
    if (!row)
        return;
    auto input = family::InputOf(*row);
    input.validated = true;
    if (what == "delete") {
        DeleteAppointment(*database_, input, author_);
    } else {
        input.remark = "Ligar antes.";
        AlterAppointment(*database_, input, author_);
    }
}

} // namespace kova::monkey
