#include "toolkits/headless/queue_driver.hpp"

#include "reports/pages.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/menu.hpp"
#include "toolkits/common/report.hpp"

#include <utility>

namespace kova::headless {

namespace {

template <class T> T TakeFirst(std::deque<T>& queue)
{
    T first = std::move(queue.front());
    queue.pop_front();
    return first;
}

} // namespace

std::size_t QueueDriver::Unused() const
{
    return replies_.size() + menus_.size() + actions_.size() + pauses_.size() + previews_.size();
}

void QueueDriver::RunModal(toolkit::FormModel& form)
{
    while (form.Current().visible && !actions_.empty())
        TakeFirst(actions_)();
    if (form.Current().visible)
        unexpected_.push_back("modal form " + form.Design().name + " is still open");
}

Reply QueueDriver::Answer(MessageKind kind, const Text& text, const Text& title)
{
    questions_.push_back({kind, text, title});
    if (!replies_.empty())
        return TakeFirst(replies_);
    unexpected_.push_back("message box: " + text);
    return Reply::Ok;
}

toolkit::MenuModel* QueueDriver::ChooseMenu(toolkit::MenuModel& parent,
                                            const std::vector<toolkit::MenuModel*>& entries)
{
    if (menus_.empty()) {
        unexpected_.push_back("pop-up menu: " + parent.Design().name);
        return nullptr;
    }
    const std::string name = TakeFirst(menus_);
    if (name.empty())
        return nullptr;
    for (auto* entry : entries) {
        if (entry->Design().name == name && entry->IsChoosable())
            return entry;
    }
    unexpected_.push_back("menu entry " + name + " cannot be chosen");
    return nullptr;
}

void QueueDriver::RunPreview(const toolkit::ReportModel& report, const reports::Document& pages)
{
    if (previews_.empty())
        unexpected_.push_back("preview of " + report.Current().name);
    else
        TakeFirst(previews_)(pages);
}

void QueueDriver::DuringPause(Double)
{
    if (!pauses_.empty())
        TakeFirst(pauses_)();
}

} // namespace kova::headless
