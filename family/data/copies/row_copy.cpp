#include "family/data/copies/row_copy.hpp"

#include "family/data/engine/snapshot.hpp"
#include "family/data/rows/numbering.hpp"

#include <algorithm>
#include <limits>

namespace kova::family {

namespace {

/// Read with one statement, as a server hands over all rows of a statement at once.
constexpr int RowsAtOnce = 1000;

/// The variable of a column: rows are read into it and written from it.
struct Cell {
    bool isText = false;
    long long number = 0;
    std::string text;
    soci::indicator state = soci::i_null;

    void ReadFrom(soci::statement& statement)
    {
        if (isText)
            statement.exchange(soci::into(text, state));
        else
            statement.exchange(soci::into(number, state));
    }
    void WriteTo(soci::statement& statement)
    {
        if (isText)
            statement.exchange(soci::use(text, state));
        else
            statement.exchange(soci::use(number, state));
    }
};

/// A row of any table. Its cells keep their places, to which statements are bound.
struct AnyRow {
    std::vector<Cell> cells;
    /// Names of the columns, separated by commas.
    std::string columns;
    std::size_t key = 0;

    AnyRow(Database& database, const StoredTable& table)
    {
        for (const Column& column : ColumnsOf(database, table.name)) {
            if (column.name == table.key)
                key = cells.size();
            columns += (columns.empty() ? "" : ", ") + column.name;
            cells.emplace_back().isText = column.text;
        }
    }
};

class SumOfRows {
public:
    void Add(const AnyRow& row)
    {
        std::uint64_t sum = Start;
        for (const Cell& cell : row.cells)
            sum = Mix(sum, cell);
        ++rows;
        all += sum;
    }

    long long rows = 0;
    std::uint64_t all = 0;

private:
    // The numbers are those of the 64-bit FNV-1a sum.
    static constexpr std::uint64_t Start = 14695981039346656037ULL, Factor = 1099511628211ULL;

    static std::uint64_t Mix(std::uint64_t sum, std::uint64_t value) { return (sum ^ value) * Factor; }
    static std::uint64_t Mix(std::uint64_t sum, const Cell& cell)
    {
        if (cell.state == soci::i_null)
            return Mix(sum, std::uint64_t{256});
        if (!cell.isText)
            return Mix(Mix(sum, std::uint64_t{257}), static_cast<std::uint64_t>(cell.number));
        for (const char letter : cell.text)
            sum = Mix(sum, static_cast<unsigned char>(letter));
        return Mix(sum, std::uint64_t{258});
    }
};

/// Reads a table in pages, each from behind the last key of the one before.
class TableReading {
public:
    TableReading(Database& database, const StoredTable& table, AnyRow& row)
        : row_(row), statement_(database.Session())
    {
        after_.isText = row.cells.at(row.key).isText;
        after_.number = std::numeric_limits<long long>::min();
        after_.state = soci::i_ok;
        const std::string key = table.key;
        statement_.alloc();
        for (Cell& cell : row_.cells)
            cell.ReadFrom(statement_);
        after_.WriteTo(statement_);
        statement_.prepare("select " + row.columns + " from " + table.name + " where " + key
                           + " > :apos order by " + key + " limit " + std::to_string(RowsAtOnce));
        statement_.define_and_bind();
    }

    /// `visit` finds each row in the variables.
    template <class Visit> void ForEach(Visit visit)
    {
        int found = RowsAtOnce;
        while (found == RowsAtOnce) {
            found = 0;
            statement_.execute();
            while (statement_.fetch()) {
                ++found;
                after_ = row_.cells[row_.key];
                visit();
            }
        }
    }

private:
    AnyRow& row_;
    Cell after_;
    soci::statement statement_;
};

class TableWriting {
public:
    TableWriting(Database& database, const StoredTable& table, AnyRow& row) : statement_(database.Session())
    {
        std::string marks;
        statement_.alloc();
        for (std::size_t at = 0; at < row.cells.size(); ++at) {
            marks += (at == 0 ? ":v" : ", :v") + std::to_string(at);
            row.cells[at].WriteTo(statement_);
        }
        statement_.prepare(std::string("insert into ") + table.name + " (" + row.columns + ") values ("
                           + marks + ")");
        statement_.define_and_bind();
    }

    void Run() { statement_.execute(true); }

private:
    soci::statement statement_;
};

/// Tells how far all tables together have come.
class CopyProgress {
public:
    CopyProgress(Database& source, const LongWork& work) : work_(work)
    {
        for (const TableCount& count : CountRows(source))
            total_ += count.rows;
        Tell();
    }

    void Advance()
    {
        if (++done_ % RowsAtOnce == 0)
            Tell();
    }
    void End()
    {
        done_ = total_;
        Tell();
    }

private:
    void Tell() const
    {
        work_.Reach(done_, total_);
        work_.RequireGoingOn();
    }

    const LongWork& work_;
    long long done_ = 0, total_ = 0;
};

TableSum CopyTable(Database& source, Database& target, const StoredTable& table, CopyProgress& progress)
{
    AnyRow row(source, table);
    TableReading reading(source, table, row);
    TableWriting writing(target, table, row);
    SumOfRows sum;
    reading.ForEach([&] {
        writing.Run();
        sum.Add(row);
        progress.Advance();
    });
    if (table.numbered)
        NumberOnAfter(target, table, LastNumber(source, table));
    return {table.name, sum.rows, sum.all};
}

/// What a new schema brings with it stands in the source, or was taken away there. Rows go before those that
/// they refer to.
void Empty(Database& target, const std::vector<StoredTable>& tables)
{
    std::for_each(tables.rbegin(), tables.rend(), [&](const StoredTable& table) {
        target.Session() << std::string("delete from ") + table.name;
    });
}

} // namespace

std::vector<TableSum> SumTables(Database& database, const LongWork& work)
{
    std::vector<TableSum> sums;
    for (const StoredTable& table : StoredTables(database)) {
        AnyRow row(database, table);
        SumOfRows sum;
        TableReading(database, table, row).ForEach([&] {
            sum.Add(row);
            work.RequireGoingOn();
        });
        sums.push_back({table.name, sum.rows, sum.all});
    }
    return sums;
}

std::vector<TableSum> CopyRows(Database& source, Database& target, const LongWork& work)
{
    const Snapshot snapshot(source);
    CopyProgress progress(source, work);
    const std::vector<StoredTable> tables = StoredTables(source);
    Empty(target, tables);
    std::vector<TableSum> sums;
    for (const StoredTable& table : tables)
        sums.push_back(CopyTable(source, target, table, progress));
    progress.End();
    return sums;
}

} // namespace kova::family
