#pragma once

#include "toolkits/headless/driver.hpp"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace kova::headless {

/// Plays the user from queues that a test has filled beforehand. What nobody had queued is recorded as
/// unexpected, and a test ends with a look at that record.
class QueueDriver final : public Driver {
public:
    struct Question {
        MessageKind kind;
        Text text;
        Text title;
    };

    /// The answer to the next message box.
    void QueueReply(Reply reply) { replies_.push_back(reply); }
    /// The entry chosen in the next pop-up menu; "" is none.
    void QueueMenu(std::string name) { menus_.push_back(std::move(name)); }
    /// The next thing the user does inside a modal form. Each modal form takes actions from the front
    /// until it is closed.
    void QueueAction(std::function<void()> action) { actions_.push_back(std::move(action)); }
    /// What the user does inside the next pause; a pause without one is no surprise.
    void QueueDuringPause(std::function<void()> action) { pauses_.push_back(std::move(action)); }

    /// What the user looks at in the next preview, before closing it.
    void QueuePreview(std::function<void(const reports::Document&)> look)
    {
        previews_.push_back(std::move(look));
    }

    /// All questions asked so far.
    const std::vector<Question>& Questions() const { return questions_; }
    /// One line for each box, menu or preview without a queued answer, each queued menu entry that could not
    /// be chosen, and each modal form that was still open when no action was left.
    const std::vector<std::string>& Unexpected() const { return unexpected_; }
    /// How many queued answers and actions nobody has asked for.
    std::size_t Unused() const;

    void RunModal(toolkit::FormModel& form) override;
    Reply Answer(MessageKind kind, const Text& text, const Text& title) override;
    toolkit::MenuModel* ChooseMenu(toolkit::MenuModel& parent,
                                   const std::vector<toolkit::MenuModel*>& entries) override;
    void RunPreview(const toolkit::ReportModel& report, const reports::Document& pages) override;
    void DuringPause(Double seconds) override;

private:
    std::deque<Reply> replies_;
    std::deque<std::string> menus_;
    std::deque<std::function<void()>> actions_;
    std::deque<std::function<void()>> pauses_;
    std::deque<std::function<void(const reports::Document&)>> previews_;
    std::vector<Question> questions_;
    std::vector<std::string> unexpected_;
};

} // namespace kova::headless
