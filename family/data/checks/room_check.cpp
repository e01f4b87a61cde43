#include "family/data/checks/rule_check.hpp"
#include "family/data/checks/walk_pages.hpp"
#include "family/data/engine/iso_text.hpp"

#include <map>
#include <set>

namespace kova::family {

namespace {

/// An appointment that takes room, not being cancelled. Dates are "yyyy-mm-dd" and times "hh:mm".
struct CountedAppointment {
    long long number = 0, employee = 0;
    std::string nickname, startDate, startTime, endDate, endTime;
    int limit = 0;

    /// Moments order as they come.
    std::string Start() const { return startDate + " " + startTime; }
    std::string End() const { return endDate + " " + endTime; }
};

/// The appointments of every employee, one after another by their start.
class Running {
public:
    /// How many of its employee run when this one starts, itself left out.
    std::size_t Begin(const CountedAppointment& appointment)
    {
        std::multiset<std::string>& ends = ends_[appointment.employee];
        const std::string start = appointment.Start(), end = appointment.End();
        ends.erase(ends.begin(), ends.upper_bound(start));
        const std::size_t others = ends.size();
        if (start < end)
            ends.insert(end);
        return others;
    }

private:
    std::map<long long, std::multiset<std::string>> ends_;
};

/// Reads in pages, each along the appointments by their start from behind the last one; joined so that the
/// engine does not begin with the employees.
class CountedAppointments {
public:
    CountedAppointments(Database& database, DateTime now)
        : moment_(IsoMoment(now)),
          statement_((database.Session().prepare
                          << "select a.numero, f.codigo, f.apelido, a.data_inicial, a.hora_inicial,"
                             " a.data_final, a.hora_final, f.agendamentos_simultaneos"
                             " from agendamento a cross join funcionario f"
                             " where f.codigo = a.codigo_do_funcionario"
                             " and a.situacao <> 3 and f.agendamentos_simultaneos > 0"
                             " and a.data_final || ' ' || a.hora_final > :agora"
                             " and (a.data_inicial, a.hora_inicial, a.numero) > (:data, :hora, :numero)"
                             " order by a.data_inicial, a.hora_inicial, a.numero limit "
                              + std::to_string(PageSize),
                      soci::into(row_.number), soci::into(row_.employee), soci::into(row_.nickname),
                      soci::into(row_.startDate), soci::into(row_.startTime), soci::into(row_.endDate),
                      soci::into(row_.endTime), soci::into(row_.limit), soci::use(moment_, "agora"),
                      soci::use(after_.startDate, "data"), soci::use(after_.startTime, "hora"),
                      soci::use(after_.number, "numero")))
    {
    }

    template <class Visit> void ForEach(Visit visit)
    {
        WalkPages(
            statement_, [&] { visit(row_); }, [&] { after_ = row_; });
    }

private:
    std::string moment_;
    CountedAppointment row_, after_;
    soci::statement statement_;
};

} // namespace

void FindAppointmentsWithoutRoom(Database& database, DateTime now, std::vector<std::string>& problems)
{
    Running running;
    CountedAppointments(database, now).ForEach([&](const CountedAppointment& appointment) {
        if (running.Begin(appointment) >= static_cast<std::size_t>(appointment.limit))
            problems.push_back("agendamento " + std::to_string(appointment.number) + ": "
                               + appointment.nickname
                               + " já tem, nesse horário, o máximo de agendamentos ao mesmo tempo.");
    });
}

} // namespace kova::family
