#include "family/data/stores/booked_times.hpp"

#include "family/data/engine/database.hpp"

namespace kova::family {

namespace {

class BookedTimesSelection : public KeptStatement {
public:
    explicit BookedTimesSelection(Database& database)
        : statement_((database.Session().prepare << BookedTimesStatement(), soci::into(row_.startDate),
                      soci::into(row_.startTime), soci::into(row_.endDate), soci::into(row_.endTime),
                      soci::use(filter_.employee, "funcionario"), soci::use(filter_.from, "de"),
                      soci::use(filter_.after, "apos"), soci::use(filter_.until, "ate"),
                      soci::use(filter_.except, "exceto")))
    {
    }

    std::vector<BookedTimeRow> Run(const BookedTimesFilter& filter)
    {
        filter_ = filter;
        std::vector<BookedTimeRow> rows;
        statement_.execute();
        while (statement_.fetch())
            rows.push_back(row_);
        return rows;
    }

private:
    BookedTimesFilter filter_;
    BookedTimeRow row_;
    soci::statement statement_;
};

} // namespace

// Two searches, so that each has an end: of an appointment that is over by then only the end is looked for,
// and of those that are not, which are few, an index of its own knows all that end on a later day than they
// begin. A search by one end alone would walk through everything behind it. What is asked of the beginning is
// asked of an expression where an index by the beginning must not come into question: with few employees it
// seems the better one, and then the whole past is read. For the same reason there is no order.
std::string BookedTimesStatement()
{
    const std::string columns = "select data_inicial, hora_inicial, data_final, hora_final from agendamento"
                                " where codigo_do_funcionario = :funcionario";
    const std::string rest = " and situacao <> 3 and numero <> :exceto";
    return columns + " and data_final >= :de and data_final <= :ate and data_inicial || '' > :apos" + rest
        + " union all " + columns + " and data_final > :ate and data_final > data_inicial"
        + " and data_inicial || '' > :apos and data_inicial || '' <= :ate" + rest;
}

std::vector<BookedTimeRow> FindBookedTimes(Database& database, const BookedTimesFilter& filter)
{
    return database.With<BookedTimesSelection>(
        [&](BookedTimesSelection& selection) { return selection.Run(filter); });
}

} // namespace kova::family
