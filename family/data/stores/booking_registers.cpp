#include "family/data/stores/booking_registers.hpp"

#include "family/data/engine/change_count.hpp"
#include "family/data/rows/row_statement.hpp"
#include "family/data/stores/holiday_calendar.hpp"
#include "family/data/stores/work_tables.hpp"

#include <deque>

namespace kova::family {

namespace {

/// A row of a register as a part of a wider selection, where it may be missing.
template <class Row> class PartOfSelection {
public:
    /// Has the statement fetch the row; answers its columns of the table called `name`, with a comma before
    /// each.
    std::string FetchWith(soci::statement& statement, const std::string& name)
    {
        std::string columns;
        row_.Columns([&](const char* column, auto& field) {
            columns += ", " + name + "." + column;
            Fetch(statement, field);
        });
        return columns;
    }

    std::optional<Row> Found() const
    {
        return states_.front() == soci::i_null ? std::nullopt : std::optional<Row>(row_);
    }

private:
    template <class T> void Fetch(soci::statement& statement, T& field)
    {
        statement.exchange(soci::into(field, states_.emplace_back()));
    }
    template <class T> void Fetch(soci::statement& statement, Nullable<T>& field)
    {
        FetchInto(statement, field);
    }

    Row row_;
    /// The first is the key's.
    std::deque<soci::indicator> states_;
};

class RegistersSelection : public KeptStatement {
public:
    explicit RegistersSelection(Database& database) : statement_(database.Session())
    {
        statement_.alloc();
        statement_.exchange(soci::into(changesOfHolidays_));
        statement_.exchange(soci::into(changesOfWorkTables_));
        // One after the other: they are fetched in the order of the columns.
        std::string columns = customer_.FetchWith(statement_, "c");
        columns += animal_.FetchWith(statement_, "n");
        columns += serviceType_.FetchWith(statement_, "t");
        columns += service_.FetchWith(statement_, "s");
        columns += employee_.FetchWith(statement_, "f");
        TakeFrom(statement_, keys_.customer, "cliente");
        TakeFrom(statement_, keys_.animal, "animal");
        TakeFrom(statement_, keys_.serviceType, "tipo");
        TakeFrom(statement_, keys_.service, "servico");
        TakeFrom(statement_, keys_.employee, "funcionario");
        statement_.prepare(StatementWith(columns, database.GetDialect()));
        statement_.define_and_bind();
    }

    BookingRegisters Run(const BookingKeys& keys)
    {
        keys_ = keys;
        BookingRegisters found;
        statement_.execute();
        while (statement_.fetch())
            found = {customer_.Found(), animal_.Found(),    serviceType_.Found(), service_.Found(),
                     employee_.Found(), changesOfHolidays_, changesOfWorkTables_};
        return found;
    }

private:
    /// Rows cannot be locked in the selection itself, where there may be none.
    static std::string StatementWith(const std::string& columns, const Dialect& dialect)
    {
        return "with f as (select * from funcionario where codigo = :funcionario" + dialect.lockRow
            + "), c as (select * from cliente where codigo = :cliente" + dialect.shareRow + ") select ("
            + ChangeCount::Selection({HolidayCalendar::Table}) + "), ("
            + ChangeCount::Selection(NamesOfWorkTables()) + ")" + columns
            + " from (select 1 as um) as sempre"
              " left join c on 1 = 1"
              " left join animal n on n.codigo = :animal"
              " left join tipo_de_servico t on t.numero = :tipo"
              " left join servico s on s.codigo = :servico"
              " left join f on 1 = 1";
    }

    BookingKeys keys_;
    long long changesOfHolidays_ = 0, changesOfWorkTables_ = 0;
    PartOfSelection<BookedCustomer> customer_;
    PartOfSelection<BookedAnimal> animal_;
    PartOfSelection<BookedServiceType> serviceType_;
    PartOfSelection<BookedService> service_;
    PartOfSelection<BookedEmployee> employee_;
    soci::statement statement_;
};

} // namespace

BookingRegisters FindBookingRegisters(Database& database, const BookingKeys& keys)
{
    return database.With<RegistersSelection>(
        [&](RegistersSelection& selection) { return selection.Run(keys); });
}

} // namespace kova::family
