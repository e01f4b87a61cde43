#pragma once

#include "reports/pages.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/menu.hpp"
#include "toolkits/common/report.hpp"

#include <vector>

namespace kova::scenario {

/// Who plays the user, statement by statement, in whichever loop the module runs.
class Player {
public:
    virtual ~Player() = default;

    /// Does the next statement, outside of all modal forms. False where none is left.
    virtual bool Step() = 0;
    /// Does the next statement inside a modal form that is open. False where none is left: the script has
    /// ended there, and the form's window is to be closed.
    virtual bool StepInside(toolkit::FormModel& form) = 0;
    /// The answer to a message box that has come up.
    virtual Reply Answer(MessageKind kind) = 0;
    /// The entry chosen in a menu that has come up; null chooses none.
    virtual toolkit::MenuModel* ChooseMenu(const std::vector<toolkit::MenuModel*>& entries) = 0;
    /// The preview of a report has come up; the pages hold until it is closed.
    virtual void PreviewOpens(const toolkit::ReportModel& report, const reports::Document& pages) = 0;
    /// Does the next statement inside the preview. False where it is to be closed.
    virtual bool StepInPreview() = 0;
    /// A pause has begun: does what the script says for it.
    virtual void DuringPause() = 0;
};

} // namespace kova::scenario
