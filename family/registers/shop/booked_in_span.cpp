#include "family/registers/shop/booked_in_span.hpp"

#include "family/data/engine/database.hpp"
#include "family/data/engine/iso_text.hpp"

namespace kova::family::registers {

namespace {

constexpr std::size_t LengthOfDate = 10;

/// Two searches, each by an index: of those that begin within, and of the few that run over days. What is
/// asked of the beginning there is asked of an expression, so that the past is not read by its index.
std::string Statement()
{
    const std::string columns =
        "select a.data_inicial as dia, a.hora_inicial as hora, a.numero as numero, f.apelido as funcionario,"
        " case when c.codigo is null then a.nome_do_cliente when c.apelido <> '' then c.apelido else c.nome"
        " end as cliente from agendamento a join funcionario f on f.codigo = a.codigo_do_funcionario"
        " left join cliente c on c.codigo = a.codigo_do_cliente where ";
    const std::string rest = " and a.situacao = 1"
                             " and (:funcionario = 0 or a.codigo_do_funcionario = :funcionario)"
                             " and a.data_inicial || ' ' || a.hora_inicial < :fim"
                             " and a.data_final || ' ' || a.hora_final > :inicio";
    return columns + "a.data_inicial >= :de and a.data_inicial <= :ate" + rest + " union all " + columns
        + "a.data_final > a.data_inicial and a.data_final >= :de and a.data_inicial || '' < :de" + rest
        + " order by dia, hora, numero";
}

struct Booked {
    std::string date, time, employee, customer;

    std::string Told() const
    {
        return ShownDate(date) + " " + time + ", " + customer + ", com " + employee + ".";
    }
};

} // namespace

std::string BookedInSpan(Database& database, const SpanOfEmployee& span)
{
    const std::string firstDay = span.from.substr(0, LengthOfDate);
    const std::string lastDay = span.until.substr(0, LengthOfDate);
    Booked row, first;
    Key number = 0;
    long long count = 0;
    try {
        soci::statement rows =
            (database.Session().prepare << Statement(), soci::into(row.date), soci::into(row.time),
             soci::into(number), soci::into(row.employee), soci::into(row.customer),
             soci::use(span.employee, "funcionario"), soci::use(span.until, "fim"),
             soci::use(span.from, "inicio"), soci::use(firstDay, "de"), soci::use(lastDay, "ate"));
        rows.execute();
        while (rows.fetch()) {
            if (count++ == 0)
                first = row;
        }
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
    if (count == 0)
        return {};
    if (count == 1)
        return "Há 1 agendamento nesse período: " + first.Told();
    return "Há " + std::to_string(count) + " agendamentos nesse período; o primeiro: " + first.Told();
}

} // namespace kova::family::registers
