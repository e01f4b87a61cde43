#include "family/data/stores/day_appointments.hpp"

#include "family/data/engine/database.hpp"

namespace kova::family {

namespace {

class DayAppointmentsSelection : public KeptStatement {
public:
    explicit DayAppointmentsSelection(Database& database)
        : statement_((database.Session().prepare << DayAppointmentsStatement(), soci::into(row_.number),
                      soci::into(row_.version), soci::into(row_.employee), soci::into(row_.times.startDate),
                      soci::into(row_.times.startTime), soci::into(row_.times.endDate),
                      soci::into(row_.times.endTime), soci::into(row_.status), soci::into(row_.customer),
                      soci::into(row_.animal), soci::into(row_.service), soci::into(isFetched_),
                      soci::into(isTakenBack_), soci::use(filter_.from, "de"),
                      soci::use(filter_.until, "ate"), soci::use(filter_.employee, "funcionario")))
    {
    }

    std::vector<DayAppointmentRow> Run(const DayAppointmentsFilter& filter)
    {
        filter_ = filter;
        std::vector<DayAppointmentRow> rows;
        statement_.execute();
        while (statement_.fetch()) {
            row_.isFetched = isFetched_ != 0;
            row_.isTakenBack = isTakenBack_ != 0;
            rows.push_back(row_);
        }
        return rows;
    }

private:
    DayAppointmentsFilter filter_;
    DayAppointmentRow row_;
    int isFetched_ = 0, isTakenBack_ = 0;
    soci::statement statement_;
};

} // namespace

// Two searches, as for the booked days: what begins on one of the days, and of what began before the few that
// end on a later day than they begin. Names are asked for within the row, so that they are read by their keys
// alone: a join lets the server read all animals in order of their keys, where it guesses too many rows.
std::string DayAppointmentsStatement()
{
    const std::string columns =
        "select a.numero, a.versao, a.codigo_do_funcionario, a.data_inicial, a.hora_inicial, a.data_final,"
        " a.hora_final, a.situacao,"
        " coalesce((select nome from cliente c where c.codigo = a.codigo_do_cliente), a.nome_do_cliente),"
        " coalesce((select nome from animal n where n.codigo = a.codigo_do_animal), a.nome_do_animal),"
        " (select nome from servico s where s.codigo = a.codigo_do_servico),"
        " a.transporte_buscar, a.transporte_levar from ";
    const std::string ofWhom = " and (:funcionario = 0 or a.codigo_do_funcionario = :funcionario)";
    return columns + "agendamento a where a.data_inicial >= :de and a.data_inicial <= :ate" + ofWhom
        + " union all " + columns
        + "funcionario f cross join agendamento a"
          " where a.codigo_do_funcionario = f.codigo and a.data_final > a.data_inicial"
          " and a.data_final >= :de and a.data_inicial || '' < :de"
        + ofWhom;
}

std::vector<DayAppointmentRow> FindDayAppointments(Database& database, const DayAppointmentsFilter& filter)
{
    return database.With<DayAppointmentsSelection>(
        [&](DayAppointmentsSelection& selection) { return selection.Run(filter); });
}

} // namespace kova::family
