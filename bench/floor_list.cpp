#include "bench/floor_list.hpp"

#include "family/data/engine/database.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/registers/registers.hpp"

#include <QHeaderView>

#include <cstdlib>
#include <stdexcept>

namespace kova::bench {

namespace {

/// Name, nickname, document, channels and animals.
constexpr const char* Selection =
    "select codigo, nome_de_busca || '\n' || apelido || '\n' || documento || '\n' || tipos_e_canais || '\n'"
    " || coalesce((select group_concat(nome_de_busca, '\n') from animal"
    " where codigo_do_cliente = cliente.codigo), '')"
    " from cliente where situacao not in (2, 4) order by nome_de_busca, codigo";

void ReadTexts(family::Database& database, std::vector<BareCustomer>& customers)
{
    BareCustomer customer;
    soci::statement statement =
        (database.Session().prepare << Selection, soci::into(customer.code), soci::into(customer.text));
    statement.execute();
    while (statement.fetch()) {
        customers.push_back(customer);
        customers.back().text = family::FoldText(customer.text);
    }
}

void ReadCells(family::Database& database, std::vector<BareCustomer>& customers)
{
    std::vector<family::Key> keys;
    for (const BareCustomer& customer : customers)
        keys.push_back(customer.code);
    const auto rows = family::registers::CustomerRegister().Rows(database, keys);
    if (rows.size() != customers.size())
        throw std::runtime_error("a customer is gone");
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (std::size_t cell = 0; cell < BareCustomer::CellCount; ++cell)
            customers[row].cells[cell] = QString::fromStdString(rows[row].cells.at(cell));
    }
}

} // namespace

std::vector<BareCustomer> ReadBareCustomers(family::Database& database)
{
    std::vector<BareCustomer> customers;
    ReadTexts(database, customers);
    ReadCells(database, customers);
    return customers;
}

std::vector<std::size_t> LookThrough(const std::vector<BareCustomer>& customers, const char* part)
{
    const long long code = std::atoll(part);
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place < customers.size(); ++place) {
        if (customers[place].text.find(part) != std::string::npos || customers[place].code == code)
            places.push_back(place);
    }
    return places;
}

void FoundModel::Show(std::vector<std::size_t> places)
{
    beginResetModel();
    places_ = std::move(places);
    endResetModel();
}

QVariant FoundModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    const BareCustomer& customer = customers_[places_[static_cast<std::size_t>(index.row())]];
    return customer.cells[static_cast<std::size_t>(index.column())];
}

FloorList::FloorList(const std::vector<BareCustomer>& customers, const QTableView& list)
    : customers_(customers)
{
    setModel(&found_);
    setShowGrid(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(list.verticalHeader()->defaultSectionSize());
    for (int column = 0; column < found_.columnCount(); ++column)
        setColumnWidth(column, list.columnWidth(column));
    resize(list.size());
}

void FloorList::Find(const char* part) { found_.Show(LookThrough(customers_, part)); }

} // namespace kova::bench
