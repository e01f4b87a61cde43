#pragma once

#include "toolkits/common/boxes/combo_box.hpp"
#include "toolkits/common/boxes/edit_core.hpp"
#include "toolkits/common/grid/grid.hpp"
#include "toolkits/qt/screen/toolkit.hpp"
#include "tools/hand/hand.hpp"
#include "tools/scenario/person.hpp"

#include <functional>

namespace kova::scenario {

/// A person before the screen, who works it with mouse and keys alone. Models are only looked at: whether the
/// user can act at all, and what rows a list has.
class ScreenPerson final : public Person {
public:
    explicit ScreenPerson(qt::QtToolkit& toolkit) : toolkit_(toolkit) { }

    std::string Click(const ControlName& at) override;
    std::string Choose(const ControlName& at, int row) override;
    std::string Choose(const ControlName& at, std::string_view text) override;
    std::string Type(const ControlName& at, std::string_view text) override;
    std::string Press(const ControlName& at) override;
    std::string Focus(const ControlName& at) override;
    std::string Hover(const ControlName& at, Long row) override;
    std::string HoverAt(const ControlName& at, Twips x, Twips y) override;
    std::string Rest(const ControlName& at, Long row) override;
    std::string Select(const ControlName& at, Long row) override;
    std::string Bar(const ControlName& at, int button) override;
    std::string Key(const headless::KeyPress& key) override;
    std::string CloseForm(const std::string& form) override;

private:
    using RowFinder =
        std::function<std::size_t(const std::vector<toolkit::ComboRow>& rows, std::string& name)>;
    std::string ChooseRow(const ControlName& at, const RowFinder& find);
    /// The control as its model where the user can act on it; otherwise null, with the reason. A hand that
    /// presses there all the same changes nothing.
    template <class Model> Model* Reach(const ControlName& at, std::string& refusal);
    toolkit::WidgetCore* Reach(const ControlName& at, std::string& refusal);
    void PressInVain(const toolkit::WidgetCore& widget);
    /// Where the mouse meets that row, on show after the call.
    hand::Spot SpotOfRow(toolkit::GridModel& grid, Long row, std::string& refusal);
    /// The mouse is gone: nobody is told of what changes where it was.
    void PassOn();
    std::string FocusByTab(toolkit::WidgetCore& widget);

    qt::QtToolkit& toolkit_;
    hand::Hand hand_;
};

} // namespace kova::scenario
