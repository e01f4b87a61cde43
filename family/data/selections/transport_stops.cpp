#include "family/data/selections/transport_stops.hpp"

#include "family/data/engine/database.hpp"
#include "family/data/engine/fold_text.hpp"

#include <algorithm>
#include <tuple>

namespace kova::family {

namespace {

/// What an appointment tells of both its stops.
struct TransportRow {
    Key number = 0;
    int fetch = 0, takeBack = 0;
    std::string startDate, startTime, endDate, endTime, district, address, customer, channels, animal,
        employee;
};

// Of what begins on the day, and of what ends then the few that began before, which are looked for by the
// ends of each employee's. What is asked of the beginning is asked of an expression there, so that no index
// by the beginning comes into question.
std::string StopsStatement()
{
    const std::string columns =
        "select a.numero, a.transporte_buscar, a.transporte_levar, a.data_inicial, a.hora_inicial,"
        " a.data_final, a.hora_final, coalesce(c.bairro, ''), coalesce(c.endereco_completo_com_cep, ''),"
        " coalesce(c.nome, a.nome_do_cliente), coalesce(c.tipos_e_canais, a.canais_do_cliente),"
        " coalesce(n.nome, a.nome_do_animal), f.apelido from ";
    const std::string people = " left join cliente c on c.codigo = a.codigo_do_cliente"
                               " left join animal n on n.codigo = a.codigo_do_animal";
    const std::string rest = " and a.situacao <> 3 and (a.transporte_buscar = 1 or a.transporte_levar = 1)";
    return columns + "agendamento a join funcionario f on f.codigo = a.codigo_do_funcionario" + people
        + " where a.data_inicial = :dia" + rest + " union all " + columns
        + "funcionario f cross join agendamento a" + people
        + " where a.codigo_do_funcionario = f.codigo and a.data_final > a.data_inicial"
          " and a.data_final = :dia and a.data_inicial || '' < :dia"
        + rest;
}

class StopsSelection : public KeptStatement {
public:
    explicit StopsSelection(Database& database)
        : statement_((database.Session().prepare << StopsStatement(), soci::into(row_.number),
                      soci::into(row_.fetch), soci::into(row_.takeBack), soci::into(row_.startDate),
                      soci::into(row_.startTime), soci::into(row_.endDate), soci::into(row_.endTime),
                      soci::into(row_.district), soci::into(row_.address), soci::into(row_.customer),
                      soci::into(row_.channels), soci::into(row_.animal), soci::into(row_.employee),
                      soci::use(day_, "dia")))
    {
    }

    std::vector<TransportRow> Run(const std::string& day)
    {
        day_ = day;
        std::vector<TransportRow> rows;
        statement_.execute();
        while (statement_.fetch())
            rows.push_back(row_);
        return rows;
    }

private:
    std::string day_;
    TransportRow row_;
    soci::statement statement_;
};

TransportStop StopOf(const TransportRow& row, bool isFetch)
{
    return {row.number,   isFetch,     isFetch ? row.startTime : row.endTime,
            row.district, row.address, row.customer,
            row.channels, row.animal,  row.employee};
}

} // namespace

std::vector<TransportStop> FindTransportStops(Database& database, const std::string& day)
{
    std::vector<TransportStop> stops;
    for (const TransportRow& row :
         database.With<StopsSelection>([&](StopsSelection& selection) { return selection.Run(day); })) {
        if (row.fetch != 0 && row.startDate == day)
            stops.push_back(StopOf(row, true));
        if (row.takeBack != 0 && row.endDate == day)
            stops.push_back(StopOf(row, false));
    }
    std::ranges::sort(stops, {}, [](const TransportStop& stop) {
        return std::tuple(stop.time, FoldText(stop.district), !stop.isFetch, stop.appointment);
    });
    return stops;
}

} // namespace kova::family
