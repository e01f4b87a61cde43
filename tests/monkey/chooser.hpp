#pragma once

#include "tests/monkey/plans.hpp"

#include <optional>

class QWidget;

namespace kova::monkey {

/// Where a session's acts come from.
class Source {
public:
    virtual ~Source() = default;
    /// The next act; nothing once the user has had enough. Asked when it can begin, so what is on the screen
    /// now may decide.
    virtual std::optional<Act> Next() = 0;
};

/// A list told beforehand.
class Replay : public Source {
public:
    explicit Replay(std::vector<Act> acts) : acts_(std::move(acts)) { }
    std::optional<Act> Next() override;

private:
    std::vector<Act> acts_;
    std::size_t next_ = 0;
};

/// Chooses at random among what a user could do with what is in front, mostly what makes sense there, and
/// follows plans through, with something else in between now and then.
class Chooser : public Source {
public:
    /// `first` comes before the acts chosen.
    Chooser(std::uint64_t seed, int count, Words words, std::deque<Act> first);
    std::optional<Act> Next() override;

    /// The environment may name acts by a regular expression that are not chosen.
    static constexpr const char* LeaveOutVariable = "MONKEY_LEAVE_OUT";

private:
    Act Choose();
    std::optional<Act> NextOfPlan();
    void BeginPlan();
    static bool IsLeftOut(const Act& act);
    Act InPopup();
    Act InBox();
    Act InFileDialog();
    Act InForm();
    Act InOtherWindow();
    Act InOtherArea();
    Act InSignIn();
    void PlanToSignIn();
    Act AtTarget();
    Act AtControl(const std::string& name, QWidget& widget);
    Act Keys();
    Act Typing();
    Act Somewhere(Verb verb, const std::string& target);
    Act At(Verb verb, const std::string& target, int x, int y) const;
    Act Key(const std::string& keys) const;
    Act Type(const std::string& text) const;
    Act Seldom();

    std::deque<Act> first_;
    /// The shop has users.
    bool hasUsers_;
    Chance chance_;
    int left_;
    Words words_;
    /// What is left of what the user has set out to do.
    std::deque<Act> plan_;
    bool isCareful_ = false;
};

} // namespace kova::monkey
