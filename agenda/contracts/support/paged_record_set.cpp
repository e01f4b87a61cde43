#include "agenda/contracts/support/paged_record_set.hpp"

#include "agenda/contracts/support/record_order.hpp"

namespace kova {

namespace {

char Folded(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

} // namespace

std::size_t FieldNames::Hash::operator()(std::string_view name) const
{
    std::size_t hash = 14695981039346656037U;
    for (const char c : name)
        hash = (hash ^ static_cast<unsigned char>(Folded(c))) * 1099511628211U;
    return hash;
}

bool FieldNames::Same::operator()(std::string_view a, std::string_view b) const
{
    if (a.size() != b.size())
        return false;
    for (std::size_t at = 0; at < a.size(); ++at)
        if (Folded(a[at]) != Folded(b[at]))
            return false;
    return true;
}

FieldNames::FieldNames(const std::vector<Text>& names)
{
    names_.reserve(names.size());
    for (const Text& name : names) {
        if (!Add(name))
            throw Failure(FailureNumber::BadRecordSetValue,
                          "O campo '" + name + "' existe duas vezes no conjunto de registros");
    }
}

const Text& FieldNames::At(int index) const
{
    if (index < 0 || index >= Count())
        throw Failure(FailureNumber::NoSuchField);
    return names_[static_cast<std::size_t>(index)];
}

int FieldNames::Find(std::string_view name) const
{
    if (expected_ < names_.size() && names_[expected_] == name)
        return static_cast<int>(expected_++);
    const auto found = numbers_.find(name);
    if (found == numbers_.end())
        return -1;
    expected_ = static_cast<std::size_t>(found->second) + 1;
    return found->second;
}

bool FieldNames::Add(const Text& name)
{
    if (!numbers_.emplace(name, Count()).second)
        return false;
    names_.push_back(name);
    return true;
}

void FieldNames::Clear()
{
    names_.clear();
    numbers_.clear();
    expected_ = 0;
}

Long PagedRecordSet::RecordCount() const
{
    RequireOpen();
    return RowCount();
}

Value PagedRecordSet::Field(std::string_view name) const
{
    RequireOpen();
    const int field = FieldNumber(name);
    return CellAt(CurrentRow(), field);
}

Value PagedRecordSet::Field(int index) const
{
    RequireOpen();
    fields_.At(index);
    return CellAt(CurrentRow(), index);
}

int PagedRecordSet::FieldNumber(std::string_view name) const
{
    const int number = fields_.Find(name);
    if (number < 0)
        throw Failure(FailureNumber::NoSuchField,
                      "O campo '" + Text(name) + "' não existe no conjunto de registros");
    return number;
}

Long PagedRecordSet::CurrentRow() const
{
    if (position_ < 0 || position_ >= RowCount())
        throw Failure(FailureNumber::NoCurrentRow);
    return sort_.empty() ? position_ : order_[static_cast<std::size_t>(position_)];
}

bool PagedRecordSet::Eof() const
{
    RequireOpen();
    return position_ >= RowCount();
}

bool PagedRecordSet::Bof() const
{
    RequireOpen();
    return position_ < 0 || RowCount() == 0;
}

void PagedRecordSet::RequireRows() const
{
    RequireOpen();
    if (RowCount() == 0)
        throw Failure(FailureNumber::NoCurrentRow);
}

void PagedRecordSet::MoveFirst()
{
    RequireRows();
    LeaveRow();
    position_ = 0;
}

void PagedRecordSet::MoveLast()
{
    RequireRows();
    LeaveRow();
    position_ = RowCount() - 1;
}

void PagedRecordSet::MoveNext()
{
    RequireRows();
    if (Eof())
        throw Failure(FailureNumber::NoCurrentRow);
    LeaveRow();
    ++position_;
}

void PagedRecordSet::MovePrevious()
{
    RequireRows();
    if (Bof())
        throw Failure(FailureNumber::NoCurrentRow);
    LeaveRow();
    --position_;
}

void PagedRecordSet::Sort(std::string_view order)
{
    RequireOpen();
    const auto keys = ParseOrder(order, [this](std::string_view name) { return FieldNumber(name); });
    LeaveRow();
    order_ = SortedRows(keys, RowCount(), [this](Long row, int field) { return CellAt(row, field); });
    sort_ = keys.empty() ? Text() : Text(order);
    position_ = 0;
}

void PagedRecordSet::PageSize(Long rows)
{
    if (rows < 1)
        throw Failure(FailureNumber::BadRecordSetValue);
    pageSize_ = rows;
}

Long PagedRecordSet::PageCount() const
{
    RequireOpen();
    const Long rows = RowCount();
    return rows / pageSize_ + (rows % pageSize_ == 0 ? 0 : 1);
}

Long PagedRecordSet::AbsolutePage() const
{
    RequireOpen();
    if (RowCount() == 0)
        return 0;
    if (position_ < 0)
        return -2;
    return position_ >= RowCount() ? -3 : CurrentPage();
}

void PagedRecordSet::AbsolutePage(Long page)
{
    RequireRows();
    if (page < 1 || page > PageCount())
        throw Failure(FailureNumber::BadRecordSetValue);
    LeaveRow();
    position_ = (page - 1) * pageSize_;
}

Long PagedRecordSet::AbsolutePosition() const
{
    RequireOpen();
    if (RowCount() == 0)
        return -1;
    if (position_ < 0)
        return -2;
    return position_ >= RowCount() ? -3 : position_ + 1;
}

void PagedRecordSet::RowAdded()
{
    const Long added = RowCount() - 1;
    if (!sort_.empty())
        order_.push_back(added);
    if (added > 0 && position_ == added)
        ++position_;
}

void PagedRecordSet::RowTakenBack(Long position)
{
    if (!sort_.empty())
        order_.pop_back();
    position_ = position;
}

void PagedRecordSet::ResetCursor()
{
    order_.clear();
    sort_.clear();
    position_ = 0;
}

} // namespace kova
