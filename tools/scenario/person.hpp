#pragma once

#include "agenda/contracts/widgets/widget.hpp"
#include "toolkits/headless/keys.hpp"

#include <string>
#include <string_view>

namespace kova::scenario {

/// A control by the names of scripts: "frmLista", "kvcmdAlterar", with an index where it is one of a group.
struct ControlName {
    std::string form;
    std::string control;
    int index = -1;
};

/// What a person at the screen does. Each function answers "" where it was done, or why the user could not do
/// it, as in "frmLista.kvcmdAlterar is not visible"; nothing has changed then.
class Person {
public:
    virtual ~Person() = default;

    /// Presses a button, check box or option button.
    virtual std::string Click(const ControlName& at) = 0;
    /// Opens a combo's list and picks a row.
    virtual std::string Choose(const ControlName& at, int row) = 0;
    virtual std::string Choose(const ControlName& at, std::string_view text) = 0;
    /// Moves the focus to a box and replaces its content key by key; "" empties it.
    virtual std::string Type(const ControlName& at, std::string_view text) = 0;
    /// Presses the button of a find box.
    virtual std::string Press(const ControlName& at) = 0;
    virtual std::string Focus(const ControlName& at) = 0;
    /// The mouse passes over the middle of a row, or over a place in twips: what changes there later is told
    /// to nobody.
    virtual std::string Hover(const ControlName& at, Long row) = 0;
    virtual std::string HoverAt(const ControlName& at, Twips x, Twips y) = 0;
    /// The mouse comes to a row, and stays.
    virtual std::string Rest(const ControlName& at, Long row) = 0;
    /// Clicks a row.
    virtual std::string Select(const ControlName& at, Long row) = 0;
    virtual std::string Bar(const ControlName& at, int button) = 0;
    /// A key or a chord, where the focus is.
    virtual std::string Key(const headless::KeyPress& key) = 0;
    virtual std::string CloseForm(const std::string& form) = 0;
};

} // namespace kova::scenario
