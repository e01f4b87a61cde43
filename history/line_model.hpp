#pragma once

#include "family/history/filter.hpp"
#include "family/history/line.hpp"
#include "history/desk.hpp"

#include <QAbstractTableModel>

#include <functional>
#include <string>

namespace kova::history {

/// The lines that a filter finds, the last that was written first. They are read a page at a time, as the
/// list comes to its end.
class LineModel : public QAbstractTableModel {
public:
    enum Column { When, Who, Where, What, ColumnCount };

    LineModel(const Desk& desk, QObject* parent);

    /// Reads the first page. Fails as family::history::FindLines, and shows nothing then.
    void Show(const family::history::Filter& filter, std::shared_ptr<family::Database> archive);
    void Clear();
    /// Null where there is no such row.
    const family::history::Line* LineAt(int row) const;
    /// -1 where it is not among those read.
    int RowOf(family::Key code) const;
    /// Whether there are lines behind those read.
    bool HasMore() const { return found_.more; }

    /// A page was read behind those on show; told where it could not be read.
    std::function<void()> onMore = [] {};
    std::function<void(const std::string& why)> onFailure = [](const std::string&) {};

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

private:
    const Desk& desk_;
    family::history::Filter filter_;
    /// May be left out.
    std::shared_ptr<family::Database> archive_;
    family::history::Lines found_;
};

} // namespace kova::history
