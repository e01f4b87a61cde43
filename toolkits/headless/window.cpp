#include "toolkits/headless/window.hpp"

#include "toolkits/headless/toolkit.hpp"

namespace kova::headless {

HeadlessWindow::HeadlessWindow(HeadlessToolkit& toolkit, toolkit::FormModel& form, Long handle)
    : toolkit_(toolkit), form_(form), handle_(handle)
{
}

HeadlessWindow::~HeadlessWindow() { Remove(); }

std::optional<toolkit::InnerSize> HeadlessWindow::SetParent(Long containerHandle)
{
    return toolkit_.JoinContainer(containerHandle, form_);
}

void HeadlessWindow::Remove() { toolkit_.Forget(handle_, form_); }

void HeadlessWindow::RunModal() { toolkit_.GetDriver().RunModal(form_); }

toolkit::MenuModel* HeadlessWindow::PopupMenu(toolkit::MenuModel& parent,
                                              const std::vector<toolkit::MenuModel*>& entries, Twips, Twips)
{
    return toolkit_.GetDriver().ChooseMenu(parent, entries);
}

} // namespace kova::headless
