#pragma once

#include "toolkits/common/form_window.hpp"

namespace kova::toolkit {
class FormModel;
}

namespace kova::headless {

class WindowHost;

/// A form's window in memory.
class HeadlessWindow final : public toolkit::FormWindow {
public:
    HeadlessWindow(WindowHost& host, toolkit::FormModel& form, Long handle);
    ~HeadlessWindow() override;

    Long Handle() const override { return handle_; }
    std::optional<toolkit::InnerSize> SetParent(Long containerHandle) override;
    void Update(toolkit::FormAspect) override { }
    void Show(ShowMode) override { }
    void Hide() override { }
    void Remove() override;
    void RunModal() override;
    void EndModal() override { }
    void TakeFocus() override { }
    void Refresh() override { }
    toolkit::MenuModel* PopupMenu(toolkit::MenuModel& parent, const std::vector<toolkit::MenuModel*>& entries,
                                  Twips x, Twips y) override;

private:
    WindowHost& host_;
    toolkit::FormModel& form_;
    const Long handle_;
};

} // namespace kova::headless
