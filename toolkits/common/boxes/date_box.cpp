#include "toolkits/common/boxes/date_box.hpp"

#include "agenda/contracts/text.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/shortcuts.hpp"

namespace kova::toolkit {

DateBoxModel::DateBoxModel(FormModel& form, const ControlDesign& design)
    : WidgetModel(form, design, EmptyDateMask)
{
}

kova::Text DateBoxModel::Text() const { return Read("Text", ShownText()); }

void DateBoxModel::Text(const kova::Text& value)
{
    Writing("Text", value);
    PutMasked(value);
}

void DateBoxModel::UserPicks(const Date& date)
{
    ByUser([this, date] {
        if (date < FirstDate || date > LastDate || !FocusForPress())
            return;
        const kova::Text text = FormatDate(date);
        if (text == ShownText())
            return;
        GetForm().NoteTyping();
        PutText(text);
        GetForm().Raise(change_);
    });
}

void DateBoxModel::UserRepeats()
{
    ByUser([this] { Edited(); });
}

bool DateBoxModel::TakesFormKey(std::string_view key)
{
    if (Design().repeatKey != key)
        return false;
    UserRepeats();
    return true;
}

void DateBoxModel::AddFormKeys(std::vector<KeyHelp>& keys) const
{
    if (!Design().repeatKey.empty() && TakesInput() && ShownDate())
        keys.push_back({KeyName(Design().repeatKey), "Atualizar a lista"});
}

std::optional<Date> DateBoxModel::ShownDate() const
{
    if (Length(ShownText()) != EmptyDateMask.size())
        return std::nullopt;
    const auto date = ParseDate(ShownText());
    const bool inRange = date && *date >= FirstDate && *date <= LastDate;
    return inRange ? date : std::nullopt;
}

void DateBoxModel::Edited()
{
    if (ShownDate())
        GetForm().Raise(change_);
}

void DateBoxModel::RaiseLostFocus() { GetForm().Raise(lostFocus_); }

void DateBoxModel::RaiseGotFocus() { GetForm().Raise(gotFocus_); }

void DateBoxModel::DropHandlers()
{
    change_ = nullptr;
    gotFocus_ = nullptr;
    lostFocus_ = nullptr;
}

} // namespace kova::toolkit
