#include "host/transport/stop_model.hpp"

#include "host/transport/run_sheet.hpp"
#include "screens/plain_label.hpp"

#include <utility>

namespace kova::host {

namespace {

using family::TransportStop;

struct StopColumn {
    const char* caption;
    std::string (*read)(const TransportStop& stop);
};
/// In the order of StopModel::Column.
constexpr StopColumn Columns[StopModel::ColumnCount] = {
    {"Hora", [](const TransportStop& stop) { return stop.time; }},
    {"Buscar ou levar", WhatIsDone},
    {"Bairro", [](const TransportStop& stop) { return stop.district; }},
    {"Endereço", WhereItIs},
    {"Cliente", [](const TransportStop& stop) { return stop.customer; }},
    {"Telefone", PhonesOf},
    {"Animal", [](const TransportStop& stop) { return stop.animal; }},
    {"Funcionário(a)", [](const TransportStop& stop) { return stop.employee; }},
};

} // namespace

void StopModel::Show(std::vector<TransportStop> stops)
{
    if (stops == stops_)
        return;
    beginResetModel();
    stops_ = std::move(stops);
    endResetModel();
}

int StopModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(stops_.size());
}

int StopModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : ColumnCount; }

QVariant StopModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    const QString text =
        QString::fromStdString(Columns[index.column()].read(stops_[static_cast<std::size_t>(index.row())]));
    return role == Qt::ToolTipRole ? screens::PlainTip(text) : text;
}

QVariant StopModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return QString::fromUtf8(Columns[section].caption);
}

} // namespace kova::host
