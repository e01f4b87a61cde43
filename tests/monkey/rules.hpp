#pragma once

#include <QPointer>
#include <QWidget>

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
    static void LookAtRowButtons();
    static void LookAtPanel();

    /// How often in a row the list has been found to take input.
    int calm_ = 0;
};

} // namespace kova::monkey
