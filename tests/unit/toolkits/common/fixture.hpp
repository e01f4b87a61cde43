#pragma once

#include "agenda/contracts/widgets.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/headless/keys.hpp"
#include "toolkits/headless/toolkit.hpp"
#include "toolkits/headless/user.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kova::headless {

/// A form "frm" of the controls that a test designs, and the user in front of it. The test fails where a
/// box, a menu or a modal form came up that it had not prepared, and where a handler let a failure out.
class ToolkitTest : public ::testing::Test {
protected:
    ToolkitTest() { design_.name = "frm"; }

    void TearDown() override
    {
        for (const std::string& line : toolkit_.Queue().Unexpected())
            ADD_FAILURE() << line;
        EXPECT_EQ(toolkit_.Queue().Unused(), 0U);
        for (const Failure& failure : toolkit_.UnhandledFailures())
            EXPECT_TRUE(failuresAllowed_) << failure.Number() << ' ' << failure.Description();
    }

    ControlDesign& Has(WidgetKind kind, std::string name)
    {
        ControlDesign control;
        control.kind = kind;
        control.name = std::move(name);
        design_.controls.push_back(control);
        return design_.controls.back();
    }

    void Make() { form_ = toolkit_.CreateForm(design_); }
    void Open()
    {
        Make();
        form_->Show(ShowMode::Modeless);
    }

    template <class Kind> Kind& Get(std::string_view name, int index = -1)
    {
        return Bind<Kind>(form_, name, index);
    }
    template <class Model> Model& ModelOf(std::string_view name, int index = -1)
    {
        return dynamic_cast<Model&>(form_->Control(name, index));
    }

    /// A handler that notes a word.
    Handler Note(std::string word)
    {
        return [this, word = std::move(word)] { events_.push_back(word); };
    }
    std::vector<std::string> TakeEvents() { return std::exchange(events_, {}); }

    using Events = std::vector<std::string>;

    HeadlessToolkit toolkit_;
    User user_{toolkit_};
    FormDesign design_;
    FormRef form_;
    Events events_;
    bool failuresAllowed_ = false;
};

/// The number of the failure that a call ends with; 0 where it ends well.
template <class Call> std::int32_t FailureOf(Call call)
{
    try {
        call();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

} // namespace kova::headless
