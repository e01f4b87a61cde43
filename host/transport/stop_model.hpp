#pragma once

#include "family/data/selections/transport_stops.hpp"

#include <QAbstractTableModel>

#include <vector>

namespace kova::host {

/// The stops of a day, a row for each.
class StopModel : public QAbstractTableModel {
public:
    enum Column { Time, What, District, Address, Customer, Phones, Animal, Employee, ColumnCount };

    explicit StopModel(QObject* parent) : QAbstractTableModel(parent) { }

    void Show(std::vector<family::TransportStop> stops);
    const std::vector<family::TransportStop>& Stops() const { return stops_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<family::TransportStop> stops_;
};

} // namespace kova::host
