#include "toolkits/headless/window.hpp"

#include "toolkits/headless/driver.hpp"
#include "toolkits/headless/window_host.hpp"

namespace kova::headless {

HeadlessWindow::HeadlessWindow(WindowHost& host, toolkit::FormModel& form, Long handle)
    : host_(host), form_(form), handle_(handle)
{
}

HeadlessWindow::~HeadlessWindow() { Remove(); }

std::optional<toolkit::InnerSize> HeadlessWindow::SetParent(Long containerHandle)
{
    return host_.JoinContainer(containerHandle, form_);
}

void HeadlessWindow::Remove() { host_.Forget(handle_, form_); }

void HeadlessWindow::RunModal() { host_.GetDriver().RunModal(form_); }

toolkit::MenuModel* HeadlessWindow::PopupMenu(toolkit::MenuModel& parent,
                                              const std::vector<toolkit::MenuModel*>& entries, Twips, Twips)
{
    return host_.GetDriver().ChooseMenu(parent, entries);
}

} // namespace kova::headless
