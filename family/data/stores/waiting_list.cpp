#include "family/data/stores/waiting_list.hpp"

#include "family/data/audit/add_row.hpp"
#include "family/data/audit/stamp.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/row_statement.hpp"
#include "family/data/rows/select_where.hpp"
#include "family/data/rows/update_row.hpp"

#include <algorithm>
#include <map>
#include <tuple>

namespace kova::family {

namespace {

struct LockedWaitingRow : WaitingRow {
    static constexpr bool LocksRow = true;
};
struct WaitingOfCustomer : WaitingRow {
    static constexpr const char* FoundBy = "codigo_do_cliente";
};
struct WaitingForAnimal : WaitingRow {
    static constexpr const char* FoundBy = "codigo_do_animal";
};
/// So few at once that a server does not take to reading all of the table.
constexpr std::size_t FewAtOnce = 20;
struct ServiceOfWaiting : WaitingServiceRow {
    static constexpr const char* FoundBy = "codigo_da_espera";
    static constexpr std::size_t ValuesAtOnce = FewAtOnce;
};
struct EmployeeOfWaiting : WaitingEmployeeRow {
    static constexpr const char* FoundBy = "codigo_da_espera";
    static constexpr std::size_t ValuesAtOnce = FewAtOnce;
};

/// By the index of those that are open, which knows the last day that would do.
class OpenWaitingSelection : public RowStatement<WaitingRow> {
public:
    explicit OpenWaitingSelection(Database& database) : RowStatement<WaitingRow>(database)
    {
        FetchColumns();
        TakeFrom(statement_, day_, "dia");
        Prepare("select " + ColumnNames()
                + " from lista_de_espera where situacao < 3 and data_final >= :dia");
    }

    std::vector<WaitingRow> Run(const std::string& day)
    {
        day_ = day;
        return FetchRows();
    }

private:
    std::string day_;
};

template <class Row> class Removal : public KeptStatement {
public:
    explicit Removal(Database& database)
        : statement_((database.Session().prepare
                          << std::string("delete from ") + Row::Table + " where codigo = :codigo",
                      soci::use(code_, "codigo")))
    {
    }

    void Run(Key code)
    {
        code_ = code;
        statement_.execute(true);
    }

private:
    Key code_ = 0;
    soci::statement statement_;
};

Key& TargetOf(WaitingServiceRow& row) { return row.codigoDoServico; }
Key& TargetOf(WaitingEmployeeRow& row) { return row.codigoDoFuncionario; }

/// What is chosen of one kind, with the rows that say so.
template <class Row> std::map<Key, Row> ChosenOf(Database& database, Key entry)
{
    std::map<Key, Row> chosen;
    SelectWhere<Row>(database, std::set<Key>{entry}, [&](const Row& row) {
        Row copy = row;
        chosen.emplace(TargetOf(copy), row);
    });
    return chosen;
}

template <class Row>
void WriteChosen(Database& database, Key entry, const std::set<Key>& targets, const Author& author)
{
    const std::map<Key, Row> before = ChosenOf<Row>(database, entry);
    for (const auto& [target, row] : before) {
        if (targets.contains(target))
            continue;
        database.With<Removal<Row>>([&](Removal<Row>& removal) { removal.Run(row.codigo); });
        AuditRemoval(database, author, Row::Table, row.codigo, ValuesOf(row));
    }
    for (const Key target : targets) {
        if (before.contains(target))
            continue;
        Row row;
        row.codigoDaEspera = entry;
        TargetOf(row) = target;
        AddRow(database, row, author);
    }
}

void WriteChosen(Database& database, Key entry, const WaitingEntry& chosen, const Author& author)
{
    WriteChosen<ServiceOfWaiting>(database, entry, chosen.services, author);
    WriteChosen<EmployeeOfWaiting>(database, entry, chosen.employees, author);
}

/// The rows with what stands in the other tables, in their order.
std::vector<WaitingEntry> WithChosen(Database& database, const std::vector<WaitingRow>& rows)
{
    std::vector<WaitingEntry> entries;
    std::map<Key, std::size_t> places;
    std::set<Key> codes;
    for (const WaitingRow& row : rows) {
        places[row.codigo] = entries.size();
        codes.insert(row.codigo);
        entries.push_back({row, {}, {}});
    }
    SelectWhere<ServiceOfWaiting>(database, codes, [&](const ServiceOfWaiting& row) {
        entries[places.at(row.codigoDaEspera)].services.insert(row.codigoDoServico);
    });
    SelectWhere<EmployeeOfWaiting>(database, codes, [&](const EmployeeOfWaiting& row) {
        entries[places.at(row.codigoDaEspera)].employees.insert(row.codigoDoFuncionario);
    });
    return entries;
}

template <class Row> std::optional<WaitingEntry> FindOne(Database& database, Key code)
{
    const std::optional<Row> row = FindByKey<Row>(database, code);
    return row ? std::optional(WithChosen(database, {*row}).front()) : std::nullopt;
}

} // namespace

std::optional<WaitingEntry> FindWaiting(Database& database, Key code)
{
    return FindOne<WaitingRow>(database, code);
}

std::optional<WaitingEntry> LockWaiting(Database& database, Key code)
{
    return FindOne<LockedWaitingRow>(database, code);
}

std::vector<WaitingEntry> FindOpenWaiting(Database& database, const std::string& day)
{
    std::vector<WaitingRow> rows = database.With<OpenWaitingSelection>(
        [&](OpenWaitingSelection& selection) { return selection.Run(day); });
    std::ranges::sort(rows, {}, [](const WaitingRow& row) { return std::tie(row.incluidoEm, row.codigo); });
    return WithChosen(database, rows);
}

std::vector<WaitingRow> FindWaitingOf(Database& database, Key customer)
{
    std::vector<WaitingRow> rows;
    SelectWhere<WaitingOfCustomer>(database, std::set<Key>{customer},
                                   [&](const WaitingOfCustomer& row) { rows.push_back(row); });
    return rows;
}

std::vector<WaitingRow> FindWaitingFor(Database& database, const std::set<Key>& animals)
{
    std::vector<WaitingRow> rows;
    SelectWhere<WaitingForAnimal>(database, animals,
                                  [&](const WaitingForAnimal& row) { rows.push_back(row); });
    return rows;
}

Key AddWaiting(Database& database, WaitingEntry entry, const Author& author)
{
    entry.row.codigo = 0;
    entry.row.incluidoEm = StampOfRow(database, author);
    entry.row.incluidoPor = author.name;
    const Key code = AddRow(database, entry.row, author);
    WriteChosen(database, code, entry, author);
    return code;
}

WaitingRow ReplaceWaiting(Database& database, const WaitingEntry& before, WaitingEntry after,
                          const Author& author)
{
    WriteChosen(database, before.row.codigo, after, author);
    return ReplaceWaiting(database, before.row, std::move(after.row), author);
}

WaitingRow ReplaceWaiting(Database& database, const WaitingRow& before, WaitingRow after,
                          const Author& author)
{
    after.codigo = before.codigo;
    after.incluidoEm = before.incluidoEm;
    after.incluidoPor = before.incluidoPor;
    after.alteradoEm = StampOfRow(database, author);
    after.alteradoPor = author.name;
    after.versao = before.versao + 1;
    Update(database, after);
    AuditChange(database, author, WaitingRow::Table, before.codigo, ValuesOf(before), ValuesOf(after));
    return after;
}

} // namespace kova::family
