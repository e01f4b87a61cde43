#pragma once

#include "tests/conformance/widgets/bench.hpp"
#include "toolkits/qt/screen/toolkit.hpp"

namespace kova::conformance {

/// A clock that stands still until it is told to go on.
class BenchClock final : public Clock {
public:
    DateTime Now() const override { return {{2026, 11, 20}, {10, 15, 0}}; }
    Double Timer() const override { return timer_; }
    void Advance(Double seconds) { timer_ += seconds; }

private:
    Double timer_ = 36900;
};

/// The toolkit with a person who acts, as the script says, inside the event loops of modal forms, menus
/// and message boxes.
class BenchToolkit final : public qt::QtToolkit {
public:
    BenchToolkit(const Clock& clock, Script& script) : QtToolkit(clock), script_(script) { }
    ~BenchToolkit() override { ReleaseRetired(); }

    void FormShows(const toolkit::FormModel& form, ShowMode mode) override;
    void FormPopsUp(const toolkit::FormModel& form, const toolkit::MenuModel& parent, Twips x,
                    Twips y) override;
    void UnhandledFailure(const Failure& failure) override { script_.unhandled.push_back(failure.Number()); }

protected:
    Reply AskUser(MessageKind kind, const Text& text, const Text& title) override;

private:
    void ActInside(std::weak_ptr<const toolkit::FormModel> form);
    void ChooseEntry();
    void AnswerBox();

    Script& script_;
};

} // namespace kova::conformance
