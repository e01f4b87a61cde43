#pragma once

#include "toolkits/common/toolkit.hpp"
#include "toolkits/headless/clock.hpp"
#include "tools/scenario/person.hpp"
#include "tools/scenario/player.hpp"

#include <functional>
#include <memory>
#include <string>

namespace kova::scenario {

/// What a script plays on: a toolkit with a clock that stands still, a container for the list, and a person.
/// Its transcript is the same whichever it is.
class Screen {
public:
    virtual ~Screen() = default;

    virtual toolkit::ToolkitModel& Toolkit() = 0;
    virtual headless::FrozenClock& Clock() = 0;
    virtual kova::scenario::Person& Person() = 0;

    /// Who plays in the loops; must be given before anything is shown and stay valid.
    virtual void SetPlayer(Player& player) = 0;
    /// Hears what forms and boxes do, line by line.
    virtual void OnLine(std::function<void(const std::string&)> listener) = 0;
    virtual void WidthInPixels(int pixels) = 0;
    /// The window of the host with that inner size; answers its handle.
    virtual Long CreateContainer(Twips width, Twips height) = 0;
    virtual void ResizeContainer(Twips width, Twips height) = 0;
    /// Plays the script to its end.
    virtual void Play() = 0;
    /// The forms that wait for their end go now, as the module's library will.
    virtual void ReleaseForms() = 0;
    /// Whether a failure came out of a handler, or the toolkit complained of something.
    virtual bool HasFailed() const = 0;
};

std::unique_ptr<Screen> MakeHeadlessScreen();

/// The screen by its name on the command line: "headless" or "qt". Throws std::invalid_argument with a text
/// for the user where there is none of that name in this build.
std::unique_ptr<Screen> MakeScreen(const std::string& name);

} // namespace kova::scenario
