#include "toolkits/common/boxes/time_box.hpp"

#include "agenda/contracts/date_time.hpp"
#include "agenda/contracts/text.hpp"
#include "toolkits/common/form.hpp"

namespace kova::toolkit {

TimeBoxModel::TimeBoxModel(FormModel& form, const ControlDesign& design)
    : WidgetModel(form, design, EmptyTimeMask)
{
}

kova::Text TimeBoxModel::Text() const { return Read("Text", ShownText()); }

void TimeBoxModel::Text(const kova::Text& value)
{
    Writing("Text", value);
    PutMasked(value);
}

bool TimeBoxModel::ShowsValue() const
{
    return Length(ShownText()) == EmptyTimeMask.size() && ParseTime(ShownText());
}

void TimeBoxModel::RaiseLostFocus() { GetForm().Raise(lostFocus_); }

} // namespace kova::toolkit
