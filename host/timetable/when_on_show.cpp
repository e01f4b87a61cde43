#include "host/timetable/when_on_show.hpp"

#include "toolkits/common/form.hpp"
#include "toolkits/common/toolkit.hpp"

#include <utility>

namespace kova::host {

namespace {

constexpr int LookEachMilliseconds = 5;

} // namespace

WhenOnShow::WhenOnShow(const toolkit::ToolkitModel& toolkit, std::string form, std::function<void()> act)
    : toolkit_(toolkit), form_(std::move(form)), act_(std::move(act))
{
    QObject::connect(&looking_, &QTimer::timeout, &looking_, [this] { Look(); });
    looking_.start(LookEachMilliseconds);
}

void WhenOnShow::Look()
{
    const toolkit::FormModel* form = toolkit_.FindForm(form_);
    if (form == nullptr || !form->Current().visible || !form->Refusal().empty())
        return;
    looking_.stop();
    act_();
}

} // namespace kova::host
