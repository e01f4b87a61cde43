#include "family/data/checks/rule_check.hpp"
#include "family/data/engine/iso_text.hpp"

#include <set>

namespace kova::family {

namespace {

/// An appointment that takes room, not being cancelled; moments are "yyyy-mm-dd hh:mm", which order as they
/// come.
struct CountedAppointment {
    long long number = 0, employee = 0;
    std::string nickname, start, end;
    int limit = 0;
};

/// The appointments of one employee, one after another by their start.
class Running {
public:
    /// How many run when this one starts, itself left out.
    std::size_t Begin(const CountedAppointment& appointment)
    {
        if (appointment.employee != employee_)
            ends_.clear();
        employee_ = appointment.employee;
        ends_.erase(ends_.begin(), ends_.upper_bound(appointment.start));
        const std::size_t others = ends_.size();
        if (appointment.start < appointment.end)
            ends_.insert(appointment.end);
        return others;
    }

private:
    long long employee_ = 0;
    std::multiset<std::string> ends_;
};

} // namespace

void FindAppointmentsWithoutRoom(Database& database, DateTime now, std::vector<std::string>& problems)
{
    const std::string moment = IsoMoment(now);
    CountedAppointment appointment;
    Running running;
    soci::statement statement =
        (database.Session().prepare << "select a.numero, f.codigo, f.apelido,"
                                       " a.data_inicial || ' ' || a.hora_inicial,"
                                       " a.data_final || ' ' || a.hora_final, f.agendamentos_simultaneos"
                                       " from agendamento a join funcionario f"
                                       " on f.codigo = a.codigo_do_funcionario"
                                       " where a.situacao <> 3 and f.agendamentos_simultaneos > 0"
                                       " and a.data_final || ' ' || a.hora_final > :agora"
                                       " order by f.codigo, a.data_inicial, a.hora_inicial, a.numero",
         soci::into(appointment.number), soci::into(appointment.employee), soci::into(appointment.nickname),
         soci::into(appointment.start), soci::into(appointment.end), soci::into(appointment.limit),
         soci::use(moment, "agora"));
    statement.execute();
    while (statement.fetch()) {
        if (running.Begin(appointment) >= static_cast<std::size_t>(appointment.limit))
            problems.push_back("agendamento " + std::to_string(appointment.number) + ": "
                               + appointment.nickname
                               + " já tem, nesse horário, o máximo de agendamentos ao mesmo tempo.");
    }
}

} // namespace kova::family
