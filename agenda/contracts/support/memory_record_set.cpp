#include "agenda/contracts/support/memory_record_set.hpp"

#include "agenda/contracts/text.hpp"

#include <algorithm>
#include <iterator>

namespace kova {

namespace {

Value Converted(const Value& value, FieldType type, Long size)
{
    if (type == FieldType::Any || value.IsEmpty() || value.IsNull())
        return value;
    try {
        switch (type) {
        case FieldType::Integer32: return value.ToLong();
        case FieldType::FixedText: return Left(value.ToText(), static_cast<std::size_t>(size));
        default: return value.ToText();
        }
    } catch (const Failure&) {
        throw Failure(FailureNumber::BadFieldValue);
    }
}

} // namespace

MemoryRecordSet::MemoryRecordSet(const std::vector<Text>& fieldNames,
                                 const std::vector<std::vector<Value>>& rows)
    : PagedRecordSet(fieldNames), columns_(static_cast<std::size_t>(Fields().Count())), open_(true)
{
    cells_.reserve(rows.size() * columns_.size());
    for (const auto& row : rows)
        AddRow(row);
}

void MemoryRecordSet::Append(const Text& name, FieldType type, Long size)
{
    if (open_)
        throw Failure(FailureNumber::RecordSetOpen);
    if ((type == FieldType::FixedText && size < 1) || !Fields().Add(name))
        throw Failure(FailureNumber::BadRecordSetValue);
    columns_.push_back({type, size});
}

void MemoryRecordSet::Open()
{
    if (open_)
        throw Failure(FailureNumber::RecordSetOpen);
    if (columns_.empty())
        throw Failure(FailureNumber::RecordSetWithoutFields);
    open_ = true;
    ResetCursor();
}

void MemoryRecordSet::Close()
{
    RequireOpen();
    EndEdit();
    ResetCursor();
    Fields().Clear();
    columns_.clear();
    cells_.clear();
    open_ = false;
}

void MemoryRecordSet::AddNew()
{
    RequireOpen();
    EndEdit();
    formerPosition_ = Position();
    AddRow({});
    Position(RowCount() - 1);
    editMode_ = EditMode::Adding;
}

void MemoryRecordSet::SetField(std::string_view name, const Value& value)
{
    RequireOpen();
    SetField(FieldNumber(name), value);
}

void MemoryRecordSet::SetField(int index, const Value& value)
{
    RequireOpen();
    Fields().At(index);
    const Long row = CurrentRow();
    const Column& column = columns_[static_cast<std::size_t>(index)];
    Value converted = Converted(value, column.type, column.size);
    if (editMode_ == EditMode::None)
        BeginChange(row);
    cells_[CellNumber(row, index)] = std::move(converted);
}

void MemoryRecordSet::BeginChange(Long row)
{
    const auto first = cells_.begin() + static_cast<std::ptrdiff_t>(CellNumber(row, 0));
    savedValues_.assign(first, first + static_cast<std::ptrdiff_t>(columns_.size()));
    editedRow_ = row;
    editMode_ = EditMode::Changing;
}

void MemoryRecordSet::Update()
{
    RequireOpen();
    CurrentRow();
    EndEdit();
}

void MemoryRecordSet::CancelUpdate()
{
    RequireOpen();
    CurrentRow();
    if (editMode_ == EditMode::Changing) {
        const auto first = cells_.begin() + static_cast<std::ptrdiff_t>(CellNumber(editedRow_, 0));
        std::copy(savedValues_.begin(), savedValues_.end(), first);
    } else if (editMode_ == EditMode::Adding) {
        cells_.resize(cells_.size() - columns_.size());
        RowTakenBack(formerPosition_);
    }
    EndEdit();
}

void MemoryRecordSet::AddRow(std::vector<Value> values)
{
    RequireOpen();
    if (values.size() > columns_.size())
        throw Failure(FailureNumber::InvalidArgument);
    for (std::size_t field = 0; field < values.size(); ++field)
        if (columns_[field].type != FieldType::Any)
            values[field] = Converted(values[field], columns_[field].type, columns_[field].size);
    EndEdit();
    values.resize(columns_.size());
    std::move(values.begin(), values.end(), std::back_inserter(cells_));
    RowAdded();
}

Long MemoryRecordSet::RowCount() const
{
    return columns_.empty() ? 0 : static_cast<Long>(cells_.size() / columns_.size());
}

void MemoryRecordSet::RequireOpen() const
{
    if (!open_)
        throw Failure(FailureNumber::RecordSetClosed);
}

void MemoryRecordSet::LeaveRow() { EndEdit(); }

void MemoryRecordSet::EndEdit()
{
    editMode_ = EditMode::None;
    savedValues_.clear();
}

namespace {

std::shared_ptr<MemoryRecordSet> EmptyCopy(const RecordSet& selection)
{
    std::vector<Text> names;
    for (int field = 0; field < selection.FieldCount(); ++field)
        names.push_back(selection.FieldName(field));
    return std::make_shared<MemoryRecordSet>(names, std::vector<std::vector<Value>>());
}

std::vector<Value> CurrentRowOf(const RecordSet& selection)
{
    const int fields = selection.FieldCount();
    std::vector<Value> row;
    row.reserve(static_cast<std::size_t>(fields));
    for (int field = 0; field < fields; ++field)
        row.push_back(selection.Field(field));
    return row;
}

void CopyRows(RecordSet& from, MemoryRecordSet& to, Long most)
{
    for (Long row = 0; row < most && !from.Eof(); ++row, from.MoveNext())
        to.AddRow(CurrentRowOf(from));
}

/// A record set can only be sent to a page's first row, so a row inside the page is walked to.
void ReturnTo(RecordSet& selection, Long page, Long position)
{
    selection.AbsolutePage(page);
    while (selection.AbsolutePosition() < position)
        selection.MoveNext();
}

} // namespace

RecordSetRef CopyPage(RecordSet& selection, Long rowsPerPage)
{
    const auto copy = EmptyCopy(selection);
    const Long page = selection.AbsolutePage();
    if (page < 1)
        return copy;
    const Long position = selection.AbsolutePosition();
    selection.AbsolutePage(page);
    try {
        CopyRows(selection, *copy, rowsPerPage < 1 ? 1 : rowsPerPage);
    } catch (...) {
        ReturnTo(selection, page, position);
        throw;
    }
    ReturnTo(selection, page, position);
    return copy;
}

} // namespace kova
