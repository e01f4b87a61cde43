#pragma once

#include "family/business/places/timetable.hpp"
#include "timetable/lanes.hpp"

#include <QAbstractListModel>

#include <vector>

namespace kova::timetable {

/// The blocks of a timetable, one row each: column by column, each by its beginning. Qt::DisplayRole is what
/// stands in a block, in lines; Qt::AccessibleTextRole a whole sentence; Qt::ToolTipRole the same, as it
/// stands.
class BlockModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    /// Takes the place of what was there. Cancelled appointments are left out unless they are wanted.
    void Show(std::vector<family::TimetableColumn> columns, bool withCancelled);

    const std::vector<family::TimetableColumn>& Columns() const { return columns_; }
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    const family::TimetableBlock& Block(int row) const;
    /// The column that it stands in.
    int ColumnOf(int row) const { return places_.at(static_cast<std::size_t>(row)).column; }
    /// From the first row of a column up to, and without, the first one of the next.
    struct Range {
        int first = 0, end = 0;
    };
    Range RowsOf(int column) const { return ranges_.at(static_cast<std::size_t>(column)); }
    /// The row of the block of that column that holds the minute, the first one; -1 of none.
    int RowAt(int column, int minute) const;
    /// The row of an appointment; -1 where it is not there.
    int RowOf(family::Key number) const;

    /// The first minute of a column's day at which somebody may be booked, or is; midnight where none is.
    int FirstMinute() const;

    /// What a user calls a place where nothing is booked: who, when, and whether it is free.
    QString PlaceAsText(int column, int minute) const;

private:
    struct Place {
        int column = 0;
        std::size_t block = 0;
    };

    QString Lines(const family::TimetableBlock& block) const;
    QString Sentence(int row) const;

    std::vector<family::TimetableColumn> columns_;
    std::vector<Place> places_;
    std::vector<Range> ranges_;
};

/// "Rex, de Ana Souza".
QString WhoAndWhat(const family::DayAppointmentRow& row);
/// How a status is called.
QString NameOfStatus(int status);
/// "09:30"; "24:00" at the end of the day.
QString TextOfMinute(int minute);

} // namespace kova::timetable
