#pragma once

#include "agenda/contracts/platform.hpp"

#include <vector>

namespace kova::reports {
struct Document;
}
namespace kova::toolkit {
class FormModel;
class MenuModel;
class ReportModel;
} // namespace kova::toolkit

namespace kova::headless {

/// Who plays the user wherever the event loop runs inside a call.
class Driver {
public:
    virtual ~Driver() = default;

    /// A modal form is open: acts as the user until `form.Current().visible` is false. Returning earlier
    /// hides the form.
    virtual void RunModal(toolkit::FormModel& form) = 0;
    /// A message box asks. Answers that the box does not offer become its default: No of a question, Ok
    /// of the others.
    virtual Reply Answer(MessageKind kind, const Text& text, const Text& title) = 0;
    /// A pop-up menu is open; null chooses nothing. An entry that is disabled or a rule is not chosen.
    virtual toolkit::MenuModel* ChooseMenu(toolkit::MenuModel& parent,
                                           const std::vector<toolkit::MenuModel*>& entries) = 0;
    /// The preview of a report is open: acts as the user, and returns to close it. The pages hold until
    /// then.
    virtual void RunPreview(const toolkit::ReportModel&, const reports::Document&) { }
    /// A pause of that many seconds has begun; asked once in each, when it first takes events.
    virtual void DuringPause(Double seconds) = 0;
};

} // namespace kova::headless
