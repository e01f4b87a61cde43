#include "family/data/stores/booked_days.hpp"

#include "family/data/engine/database.hpp"

namespace kova::family {

namespace {

class BookedDaysSelection : public KeptStatement {
public:
    explicit BookedDaysSelection(Database& database)
        : statement_((database.Session().prepare << BookedDaysStatement(), soci::into(row_.employee),
                      soci::into(row_.times.startDate), soci::into(row_.times.startTime),
                      soci::into(row_.times.endDate), soci::into(row_.times.endTime), soci::use(from_, "de"),
                      soci::use(until_, "ate")))
    {
    }

    std::vector<BookedEmployeeRow> Run(const std::string& from, const std::string& until)
    {
        from_ = from;
        until_ = until;
        std::vector<BookedEmployeeRow> rows;
        statement_.execute();
        while (statement_.fetch())
            rows.push_back(row_);
        return rows;
    }

private:
    std::string from_, until_;
    BookedEmployeeRow row_;
    soci::statement statement_;
};

} // namespace

// Two searches, so that neither the past nor the future is gone through: what begins on one of the days, and
// of what began before the few that end on a later day than they begin, which an index of its own knows for
// each employee. That the employees come first is for the engine to keep; and what is asked of the beginning
// there is asked of an expression, so that no index by the beginning comes into question.
std::string BookedDaysStatement()
{
    const std::string columns =
        "select a.codigo_do_funcionario, a.data_inicial, a.hora_inicial, a.data_final, a.hora_final from ";
    return columns
        + "agendamento a where a.data_inicial >= :de and a.data_inicial <= :ate and a.situacao <> 3"
        + " union all " + columns
        + "funcionario f cross join agendamento a where a.codigo_do_funcionario = f.codigo"
          " and a.data_final > a.data_inicial and a.data_final >= :de and a.data_inicial || '' < :de"
          " and a.situacao <> 3";
}

std::vector<BookedEmployeeRow> FindBookedDays(Database& database, const std::string& from,
                                              const std::string& until)
{
    return database.With<BookedDaysSelection>(
        [&](BookedDaysSelection& selection) { return selection.Run(from, until); });
}

} // namespace kova::family
