// A script on the toolkit without a screen.

#include "toolkits/headless/toolkit.hpp"
#include "tools/scenario/headless_person.hpp"
#include "tools/scenario/screen.hpp"

namespace kova::scenario {

namespace {

/// Hands the loops of the toolkit to the player.
class PlayerDriver final : public headless::Driver {
public:
    Player* player = nullptr;

    void RunModal(toolkit::FormModel& form) override
    {
        while (form.Current().visible && player->StepInside(form)) { }
        if (form.Current().visible)
            form.UserCloses();
    }
    Reply Answer(MessageKind kind, const Text&, const Text&) override { return player->Answer(kind); }
    toolkit::MenuModel* ChooseMenu(toolkit::MenuModel&,
                                   const std::vector<toolkit::MenuModel*>& entries) override
    {
        return player->ChooseMenu(entries);
    }
    void RunPreview(const toolkit::ReportModel& report, const reports::Document& pages) override
    {
        player->PreviewOpens(report, pages);
        while (player->StepInPreview()) { }
    }
    void DuringPause(Double) override { player->DuringPause(); }
};

class HeadlessScreen final : public Screen {
public:
    HeadlessScreen() : person_(toolkit_) { }

    toolkit::ToolkitModel& Toolkit() override { return toolkit_; }
    headless::FrozenClock& Clock() override { return toolkit_.Clock(); }
    kova::scenario::Person& Person() override { return person_; }

    void SetPlayer(Player& player) override
    {
        driver_.player = &player;
        toolkit_.SetDriver(&driver_);
    }
    void OnLine(std::function<void(const std::string&)> listener) override
    {
        toolkit_.OnLine(std::move(listener));
    }
    void WidthInPixels(int pixels) override { toolkit_.ScreenWidthInPixels(pixels); }
    Long CreateContainer(Twips width, Twips height) override
    {
        container_ = toolkit_.CreateContainer(width, height);
        return container_;
    }
    void ResizeContainer(Twips width, Twips height) override
    {
        toolkit_.ResizeContainer(container_, width, height);
    }
    void Play() override
    {
        while (driver_.player->Step()) { }
    }
    void ReleaseForms() override { }
    bool HasFailed() const override { return !toolkit_.UnhandledFailures().empty(); }

private:
    PlayerDriver driver_;
    headless::HeadlessToolkit toolkit_;
    HeadlessPerson person_;
    Long container_ = 0;
};

} // namespace

std::unique_ptr<Screen> MakeHeadlessScreen() { return std::make_unique<HeadlessScreen>(); }

} // namespace kova::scenario
