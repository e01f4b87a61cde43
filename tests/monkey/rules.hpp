#pragma once

#include <QPointer>
#include <QWidget>

#include <utility>
#include <vector>

namespace kova::monkey {

/// What must hold at every moment. A rule that is broken is a finding.
class Rules {
public:
    /// To be called between the user's acts, as often as time allows.
    void Look();
    /// What must hold besides once the user has gone back to the list and it takes input.
    static void LookAtHome();

private:
    void LookForFailures();
    /// While somebody is asked who it is nothing else is seen of a locked desk or takes input, and what was
    /// typed stays.
    void LookAtSignIn();
    static void LookAtRowButtons();
    static void LookAtPanel();

    /// How often in a row the list has been found to take input.
    int calm_ = 0;
    /// The fields on show when somebody was asked, with what stood in them.
    std::vector<std::pair<QPointer<QWidget>, QString>> typed_;
    bool wasAsked_ = false;
};

} // namespace kova::monkey
