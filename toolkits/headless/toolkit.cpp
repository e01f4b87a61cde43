#include "toolkits/headless/toolkit.hpp"

#include "reports/layout.hpp"
#include "toolkits/common/event_scope.hpp"
#include "toolkits/common/factory/widget_factory.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/report.hpp"
#include "toolkits/headless/window.hpp"

#include <utility>

namespace kova::headless {

HeadlessToolkit::HeadlessToolkit() : ToolkitModel(toolkit::MakeWidget) { }

HeadlessToolkit::~HeadlessToolkit() { ReleaseRetired(); }

Long HeadlessToolkit::CreateContainer(Twips width, Twips height)
{
    const Long handle = nextHandle_++;
    containers_[handle].inner = {width, height};
    return handle;
}

void HeadlessToolkit::ResizeContainer(Long handle, Twips width, Twips height)
{
    const auto found = containers_.find(handle);
    if (found == containers_.end())
        throw Failure(FailureNumber::InvalidArgument);
    found->second.inner = {width, height};
    const toolkit::EventScope scope(*this);
    const auto forms = found->second.forms;
    for (toolkit::FormModel* form : forms)
        form->UserResizes({width, height});
}

void HeadlessToolkit::DestroyContainer(Long handle)
{
    const auto found = containers_.find(handle);
    if (found == containers_.end())
        throw Failure(FailureNumber::InvalidArgument);
    const auto forms = found->second.forms;
    containers_.erase(found);
    const toolkit::EventScope scope(*this);
    for (toolkit::FormModel* form : forms)
        form->ContainerEnds();
}

std::optional<toolkit::InnerSize> HeadlessToolkit::JoinContainer(Long handle, toolkit::FormModel& form)
{
    const auto found = containers_.find(handle);
    if (found == containers_.end())
        return std::nullopt;
    for (auto& [number, container] : containers_)
        std::erase(container.forms, &form);
    found->second.forms.push_back(&form);
    return found->second.inner;
}

std::unique_ptr<toolkit::FormWindow> HeadlessToolkit::MakeWindow(toolkit::FormModel& form)
{
    const Long handle = nextHandle_++;
    windows_[handle].form = &form;
    WindowHost& host = *this;
    return std::make_unique<HeadlessWindow>(host, form, handle);
}

std::unique_ptr<toolkit::View> HeadlessToolkit::MakeView(toolkit::WidgetCore&) { return nullptr; }

void HeadlessToolkit::Forget(Long handle, toolkit::FormModel& form)
{
    windows_.erase(handle);
    std::erase_if(windows_, [&form](const auto& entry) { return entry.second.form == &form; });
    for (auto& [number, container] : containers_)
        std::erase(container.forms, &form);
}

Long HeadlessToolkit::HandleOf(const toolkit::WidgetCore& widget)
{
    for (const auto& [handle, window] : windows_) {
        if (window.panel == &widget)
            return handle;
    }
    const Long handle = nextHandle_++;
    windows_[handle] = {&widget.GetForm(), &widget, std::nullopt};
    return handle;
}

void HeadlessToolkit::SetRoundRectRegion(Long handle, int ellipseWidth, int ellipseHeight)
{
    const auto found = windows_.find(handle);
    if (found == windows_.end())
        return;
    const int calls = found->second.corners ? found->second.corners->calls : 0;
    found->second.corners = Corners{ellipseWidth, ellipseHeight, calls + 1};
}

std::optional<HeadlessToolkit::Corners> HeadlessToolkit::CornersOf(Long handle) const
{
    const auto found = windows_.find(handle);
    return found == windows_.end() ? std::nullopt : found->second.corners;
}

void HeadlessToolkit::RunPreview(const toolkit::ReportModel& report)
{
    const reports::Document pages =
        reports::LayOut({report.Current(), report.Data(), clock_.Now()}, reportMetrics_);
    LogReport(report, pages);
    GetDriver().RunPreview(report, pages);
}

void HeadlessToolkit::PauseBegins(Double seconds)
{
    ToolkitModel::PauseBegins(seconds);
    pauses_.push_back({seconds, false});
    clock_.HoldTimer();
    LogPause(seconds);
}

void HeadlessToolkit::PauseEnds()
{
    if (pauses_.empty())
        return;
    pauses_.pop_back();
    ToolkitModel::PauseEnds();
    clock_.ReleaseTimer();
}

void HeadlessToolkit::ProcessPendingEvents()
{
    if (pauses_.empty())
        return;
    const Double seconds = pauses_.back().seconds;
    if (!std::exchange(pauses_.back().asked, true))
        GetDriver().DuringPause(seconds);
    clock_.Advance(seconds);
}

Twips HeadlessToolkit::ScreenWidth() const { return static_cast<Twips>(screenWidth_) * TwipsPerPixelX(); }

} // namespace kova::headless
