#include "toolkits/common/boxes/combo_box.hpp"

#include "toolkits/common/form.hpp"
#include "toolkits/common/toolkit.hpp"

#include <algorithm>
#include <limits>

namespace kova::toolkit {

ComboBoxModel::ComboBoxModel(FormModel& form, const ControlDesign& design)
    : WidgetModel(form, design), text_(design.text)
{
}

kova::Text ComboBoxModel::Text() const { return Read("Text", text_); }

void ComboBoxModel::Text(const kova::Text& value)
{
    Writing("Text", value);
    const auto found =
        std::find_if(rows_.begin(), rows_.end(), [&value](const ComboRow& row) { return row.text == value; });
    if (found != rows_.end())
        return Select(static_cast<int>(found - rows_.begin()));
    row_ = -1;
    text_ = value;
    Tell(Aspect::Content);
}

Integer ComboBoxModel::ListIndex() const { return static_cast<Integer>(Read("ListIndex", row_)); }

void ComboBoxModel::ListIndex(Integer row)
{
    Writing("ListIndex", row);
    if (row < -1 || row >= static_cast<int>(rows_.size()))
        throw Failure(FailureNumber::BadPropertyValue);
    Select(row);
}

Integer ComboBoxModel::NewIndex() const { return static_cast<Integer>(Read("NewIndex", newRow_)); }

Integer ComboBoxModel::ListCount() const
{
    Reading("ListCount");
    return static_cast<Integer>(rows_.size());
}

kova::Text ComboBoxModel::List(Integer row) const
{
    if (auto* observer = Observer())
        observer->Read(AccessToElement("List", row));
    const bool exists = row >= 0 && row < static_cast<int>(rows_.size());
    return exists ? rows_[static_cast<std::size_t>(row)].text : kova::Text();
}

Long ComboBoxModel::ItemData(Integer row) const
{
    if (auto* observer = Observer())
        observer->Read(AccessToElement("ItemData", row));
    if (row < 0 || row >= static_cast<int>(rows_.size()))
        throw Failure(FailureNumber::BadListRow);
    return rows_[static_cast<std::size_t>(row)].data;
}

void ComboBoxModel::ItemData(Integer row, Long data)
{
    if (auto* observer = Observer())
        observer->Write(AccessToElement("ItemData", row), data);
    if (row < 0 || row >= static_cast<int>(rows_.size()))
        throw Failure(FailureNumber::BadListRow);
    rows_[static_cast<std::size_t>(row)].data = data;
}

void ComboBoxModel::AddItem(const kova::Text& text)
{
    Calling("AddItem", text);
    if (rows_.size() >= static_cast<std::size_t>(std::numeric_limits<Integer>::max()))
        throw Failure(FailureNumber::Overflow);
    rows_.push_back({text, 0});
    newRow_ = static_cast<int>(rows_.size()) - 1;
    Tell(Aspect::Content);
}

void ComboBoxModel::Clear()
{
    Calling("Clear");
    ShowList(false);
    rows_.clear();
    text_.clear();
    row_ = -1;
    newRow_ = -1;
    Tell(Aspect::Content);
}

void ComboBoxModel::Select(int row)
{
    row_ = row;
    text_ = row < 0 ? kova::Text() : rows_[static_cast<std::size_t>(row)].text;
    Tell(Aspect::Content);
    GetForm().GetToolkit().AskGuardAgain();
    GetForm().Raise(click_);
}

void ComboBoxModel::RaiseLostFocus()
{
    ShowList(false);
    GetForm().Raise(lostFocus_);
}

void ComboBoxModel::DropHandlers()
{
    click_ = nullptr;
    dropDown_ = nullptr;
    lostFocus_ = nullptr;
}

} // namespace kova::toolkit
