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

// Without an order: for one by the start the engine would walk along every employee's appointments.
std::string BookedTimesStatement()
{
    return "select data_inicial, hora_inicial, data_final, hora_final from agendamento"
           " where codigo_do_funcionario = :funcionario and data_final >= :de"
           " and data_inicial > :apos and data_inicial <= :ate"
           " and situacao <> 3 and numero <> :exceto";
}

std::vector<BookedTimeRow> FindBookedTimes(Database& database, const BookedTimesFilter& filter)
{
    return database.With<BookedTimesSelection>(
        [&](BookedTimesSelection& selection) { return selection.Run(filter); });
}

} // namespace kova::family
