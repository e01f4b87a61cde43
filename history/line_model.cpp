#include "history/line_model.hpp"

#include "family/business/clash_text.hpp"
#include "family/data/engine/database_failure.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/history/changes.hpp"
#include "family/history/lines.hpp"
#include "screens/plain_label.hpp"

#include <algorithm>
#include <iterator>

namespace kova::history {

namespace {

using family::history::Line;
using family::history::Lines;

/// More than a window shows, so that a list never ends where it is painted.
constexpr std::size_t PageSize = 100;

QString TextOf(const Line& line, int column)
{
    family::AuditLine who = line.audit;
    switch (column) {
    case LineModel::When:
        return QString::fromStdString(family::IsIsoMoment(who.moment) ? family::ShownMoment(who.moment)
                                                                      : who.moment);
    case LineModel::Who: who.desk.clear(); return QString::fromStdString(family::PersonOf(who));
    case LineModel::Where: return QString::fromStdString(who.desk);
    default: return QString::fromStdString(family::history::ActOf(line));
    }
}

} // namespace

LineModel::LineModel(const Desk& desk, QObject* parent) : QAbstractTableModel(parent), desk_(desk) { }

void LineModel::Show(const family::history::Filter& filter, std::shared_ptr<family::Database> archive)
{
    Clear();
    Lines found =
        family::history::FindLines({*desk_.database, archive.get()}, desk_.author(), filter, {}, PageSize);
    beginResetModel();
    filter_ = filter;
    archive_ = std::move(archive);
    found_ = std::move(found);
    endResetModel();
}

void LineModel::Clear()
{
    beginResetModel();
    found_ = {};
    endResetModel();
}

const Line* LineModel::LineAt(int row) const
{
    return row >= 0 && row < rowCount() ? &found_.lines[static_cast<std::size_t>(row)] : nullptr;
}

int LineModel::RowOf(family::Key code) const
{
    const auto found =
        std::ranges::find(found_.lines, code, [](const Line& line) { return line.audit.code; });
    return found == found_.lines.end() ? -1 : static_cast<int>(found - found_.lines.begin());
}

int LineModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(found_.lines.size());
}

int LineModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : ColumnCount; }

QVariant LineModel::data(const QModelIndex& index, int role) const
{
    const Line* line = LineAt(index.row());
    const bool isText = role == Qt::DisplayRole || role == Qt::ToolTipRole || role == Qt::AccessibleTextRole;
    if (line == nullptr || !isText)
        return {};
    const QString text = TextOf(*line, index.column());
    return role == Qt::ToolTipRole ? screens::PlainTip(text) : text;
}

QVariant LineModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(Qt::AlignVCenter | Qt::AlignLeft);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case When: return QStringLiteral("Quando");
    case Who: return QStringLiteral("Quem");
    case Where: return QStringLiteral("Posto");
    default: return QStringLiteral("O que fez");
    }
}

bool LineModel::canFetchMore(const QModelIndex& parent) const { return !parent.isValid() && found_.more; }

// A view asks while it scrolls, where nothing may be thrown.
void LineModel::fetchMore(const QModelIndex&)
{
    try {
        Lines next = family::history::FindLines({*desk_.database, archive_.get()}, desk_.author(), filter_,
                                                found_.lines.back(), PageSize);
        const int first = rowCount(), count = static_cast<int>(next.lines.size());
        found_.more = next.more;
        if (count > 0) {
            beginInsertRows({}, first, first + count - 1);
            std::ranges::move(next.lines, std::back_inserter(found_.lines));
            endInsertRows();
        }
        onMore();
    } catch (const Failure& failure) {
        found_.more = false;
        onFailure(failure.Description());
    }
}

} // namespace kova::history
