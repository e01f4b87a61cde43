#pragma once

#include "toolkits/headless/toolkit.hpp"
#include "toolkits/headless/user.hpp"
#include "tools/scenario/person.hpp"

#include <functional>
#include <optional>

namespace kova::scenario {

/// A person before the toolkit without a screen.
class HeadlessPerson final : public Person {
public:
    explicit HeadlessPerson(headless::HeadlessToolkit& toolkit) : toolkit_(toolkit), user_(toolkit) { }

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
    /// The mouse goes to a control on its way to a press: off the grid on which it rests, or on above it.
    /// Nothing moves where the user cannot press it, or it does not fit what is to be done.
    void MoveMouse(const ControlName& at, const std::function<bool(const toolkit::WidgetCore&)>& fits);

    headless::HeadlessToolkit& toolkit_;
    headless::User user_;
    /// The grid on which the mouse rests.
    std::optional<ControlName> resting_;
};

} // namespace kova::scenario
