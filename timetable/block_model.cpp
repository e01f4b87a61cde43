#include "timetable/block_model.hpp"

#include "agenda/contracts/date_time.hpp"
#include "screens/plain_label.hpp"

#include <QStringList>

#include <algorithm>

namespace kova::timetable {

namespace {

constexpr int Booked = 1, Attended = 2, Cancelled = 3, AttendedWithPreSale = 4;
constexpr int MinutesOfHour = 60;

QString Of(const std::string& text) { return QString::fromStdString(text); }

QString Transport(const family::DayAppointmentRow& row)
{
    if (row.isFetched && row.isTakenBack)
        return QStringLiteral(" Buscar e levar.");
    if (row.isFetched)
        return QStringLiteral(" Buscar.");
    return row.isTakenBack ? QStringLiteral(" Levar.") : QString();
}

} // namespace

QString NameOfStatus(int status)
{
    switch (status) {
    case Booked: return QStringLiteral("Agendado");
    case Attended: return QStringLiteral("Atendido");
    case Cancelled: return QStringLiteral("Cancelado");
    case AttendedWithPreSale: return QStringLiteral("At. gerado pré-venda");
    default: return QString();
    }
}

QString WhoAndWhat(const family::DayAppointmentRow& row)
{
    const QString animal = Of(row.animal), customer = Of(row.customer);
    if (animal.isEmpty() || customer.isEmpty())
        return animal + customer;
    return animal + QStringLiteral(", de ") + customer;
}

QString TextOfMinute(int minute)
{
    return QStringLiteral("%1:%2")
        .arg(minute / MinutesOfHour, 2, 10, QLatin1Char('0'))
        .arg(minute % MinutesOfHour, 2, 10, QLatin1Char('0'));
}

void BlockModel::Show(std::vector<family::TimetableColumn> columns, bool withCancelled)
{
    beginResetModel();
    columns_ = std::move(columns);
    places_.clear();
    ranges_.clear();
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        auto& blocks = columns_[column].blocks;
        if (!withCancelled)
            std::erase_if(blocks, [](const auto& block) { return block.row.status == Cancelled; });
        const int first = static_cast<int>(places_.size());
        for (std::size_t block = 0; block < blocks.size(); ++block)
            places_.push_back({static_cast<int>(column), block});
        ranges_.push_back({first, static_cast<int>(places_.size())});
    }
    endResetModel();
}

int BlockModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(places_.size());
}

QVariant BlockModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole: return Lines(Block(index.row()));
    case Qt::AccessibleTextRole: return Sentence(index.row());
    case Qt::ToolTipRole: return screens::PlainTip(Sentence(index.row()));
    default: return {};
    }
}

const family::TimetableBlock& BlockModel::Block(int row) const
{
    const Place& place = places_.at(static_cast<std::size_t>(row));
    return columns_[static_cast<std::size_t>(place.column)].blocks[place.block];
}

int BlockModel::RowAt(int column, int minute) const
{
    const Range rows = RowsOf(column);
    for (int row = rows.first; row < rows.end; ++row) {
        const family::PartOfDay part = Block(row).part;
        if (part.from <= minute && minute < part.until)
            return row;
    }
    return -1;
}

int BlockModel::RowOf(family::Key number) const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (Block(row).row.number == number)
            return row;
    }
    return -1;
}

int BlockModel::FirstMinute() const
{
    constexpr int MinutesOfDay = 24 * 60;
    int first = MinutesOfDay;
    for (const family::TimetableColumn& column : columns_) {
        int open = 0;
        for (const family::ClosedPart& closed : column.closed) {
            if (closed.part.from <= open)
                open = std::max(open, closed.part.until);
        }
        first = std::min(first, open);
        if (!column.blocks.empty())
            first = std::min(first, column.blocks.front().part.from);
    }
    return first == MinutesOfDay ? 0 : first;
}

QString BlockModel::PlaceAsText(int column, int minute) const
{
    const family::TimetableColumn& of = columns_.at(static_cast<std::size_t>(column));
    const auto closed = std::ranges::find_if(of.closed, [&](const family::ClosedPart& part) {
        return part.part.from <= minute && minute < part.part.until;
    });
    return QStringLiteral("%1, %2, %3: %4")
        .arg(Of(of.nickname), Of(FormatDate(of.date)), TextOfMinute(minute),
             closed == of.closed.end() ? QStringLiteral("livre") : Of(closed->why));
}

QString BlockModel::Lines(const family::TimetableBlock& block) const
{
    QStringList lines{QStringLiteral("%1 %2").arg(
        TextOfMinute(block.part.from), Of(block.row.animal.empty() ? block.row.customer : block.row.animal))};
    if (!block.row.animal.empty())
        lines.append(Of(block.row.customer));
    lines.append(Of(block.row.service));
    lines.append(NameOfStatus(block.row.status));
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n'));
}

QString BlockModel::Sentence(int row) const
{
    const family::TimetableBlock& block = Block(row);
    const family::TimetableColumn& column = columns_[static_cast<std::size_t>(ColumnOf(row))];
    const family::DayAppointmentRow& of = block.row;
    return QStringLiteral("%1, %2, das %3 às %4: %5, %6. Situação: %7.%8")
        .arg(Of(column.nickname), Of(FormatDate(column.date)), TextOfMinute(block.part.from),
             TextOfMinute(block.part.until), WhoAndWhat(of), Of(of.service), NameOfStatus(of.status),
             Transport(of));
}

} // namespace kova::timetable
