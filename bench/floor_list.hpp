#pragma once

#include <QAbstractTableModel>
#include <QTableView>

#include <array>
#include <string>
#include <vector>

namespace kova::family {
class Database;
}

namespace kova::bench {

/// A customer as a plain program would keep him: what he is looked for by, in lower case and without accents,
/// and what a list shows.
struct BareCustomer {
    static constexpr std::size_t CellCount = 6;

    std::string text;
    std::array<QString, CellCount> cells;
    long long code = 0;
};

/// Every active customer in the order of the list.
std::vector<BareCustomer> ReadBareCustomers(family::Database& database);

/// The places of those with the part in their texts, or with it as their code.
std::vector<std::size_t> LookThrough(const std::vector<BareCustomer>& customers, const char* part);

/// Some of the customers.
class FoundModel : public QAbstractTableModel {
public:
    explicit FoundModel(const std::vector<BareCustomer>& customers) : customers_(customers) { }

    void Show(std::vector<std::size_t> places);

    int rowCount(const QModelIndex& = {}) const override { return static_cast<int>(places_.size()); }
    int columnCount(const QModelIndex& = {}) const override { return BareCustomer::CellCount; }
    QVariant data(const QModelIndex& index, int role) const override;

private:
    const std::vector<BareCustomer>& customers_;
    std::vector<std::size_t> places_;
};

/// A bare table view with the size and the columns of a list.
class FloorList : public QTableView {
public:
    FloorList(const std::vector<BareCustomer>& customers, const QTableView& list);

    /// Shows what LookThrough finds.
    void Find(const char* part);

private:
    const std::vector<BareCustomer>& customers_;
    FoundModel found_{customers_};
};

} // namespace kova::bench
