#include "tools/scenario/screen/screen_toolkit.hpp"

#include "reports/layout.hpp"
#include "toolkits/common/menu.hpp"
#include "toolkits/common/report.hpp"
#include "toolkits/common/shortcuts.hpp"
#include "toolkits/headless/log_lines.hpp"
#include "toolkits/qt/look/theme.hpp"
#include "tools/scenario/screen/container_window.hpp"

#include <QApplication>
#include <QMenu>
#include <QMessageBox>

namespace kova::scenario {

namespace lines = headless::lines;

namespace {

/// The first handle of the toolkit without a screen.
constexpr Long ContainerNumber = 1001;

} // namespace

/// A form's window in whose loops the player acts.
class ScriptedWindow final : public qt::FormWindow {
public:
    ScriptedWindow(ScreenToolkit& toolkit, toolkit::FormModel& form)
        : FormWindow(toolkit.Top(), form), toolkit_(toolkit), form_(form)
    {
    }

    std::optional<toolkit::InnerSize> SetParent(Long container) override
    {
        return FormWindow::SetParent(container == ContainerNumber ? toolkit_.containerHandle_ : container);
    }

    void RunModal() override
    {
        const Pump::Turn turn(toolkit_.pump_, [this] {
            if (form_.Current().visible && !toolkit_.player_->StepInside(form_))
                Close();
        });
        FormWindow::RunModal();
    }

    toolkit::MenuModel* PopupMenu(toolkit::MenuModel& parent, const std::vector<toolkit::MenuModel*>& entries,
                                  Twips x, Twips y) override
    {
        const Pump::Turn turn(toolkit_.pump_, [this, &entries, isChosen = false]() mutable {
            if (QMenu* menu = hand::Hand::OpenMenu())
                Choose(*menu,
                       std::exchange(isChosen, true) ? nullptr : toolkit_.player_->ChooseMenu(entries));
        });
        return FormWindow::PopupMenu(parent, entries, x, y);
    }

protected:
    toolkit::InnerSize InnerOf(const QWidget& container) const override
    {
        const auto* window = dynamic_cast<const ContainerWindow*>(&container);
        return window ? window->Inner() : FormWindow::InnerOf(container);
    }

private:
    void Close()
    {
        toolkit_.hand_.CloseWindow(*Window());
        // A form that keeps itself open is not asked again.
        if (form_.Current().visible)
            EndModal();
    }

    void Choose(QMenu& menu, const toolkit::MenuModel* entry)
    {
        if (!entry)
            toolkit_.hand_.Key(Qt::Key_Escape);
        else if (const auto reason = toolkit_.hand_.Pick(menu, qt::FromText(entry->ShownCaption()));
                 !reason.empty())
            toolkit_.line_("refused: " + reason);
    }

    ScreenToolkit& toolkit_;
    toolkit::FormModel& form_;
};

ScreenToolkit::~ScreenToolkit() { ReleaseRetired(); }

Long ScreenToolkit::NumberOf(QWidget& container)
{
    containerHandle_ = qt::HandleOf(container);
    return ContainerNumber;
}

std::unique_ptr<toolkit::FormWindow> ScreenToolkit::MakeWindow(toolkit::FormModel& form)
{
    return std::make_unique<ScriptedWindow>(*this, form);
}

// The script's time moves on while the real pause lets events happen.
void ScreenToolkit::ProcessPendingEvents()
{
    const Double seconds = pauses_.empty() ? 0 : pauses_.back().seconds;
    if (!pauses_.empty() && !std::exchange(pauses_.back().asked, true))
        player_->DuringPause();
    QtToolkit::ProcessPendingEvents();
    clock_.Advance(seconds);
}

void ScreenToolkit::Release()
{
    isClosing_ = true;
    ReleaseRetired();
}

// At the end no loop comes any more, and the code of the forms' handlers goes.
void ScreenToolkit::ScheduleRelease()
{
    if (isClosing_)
        ReleaseRetired();
    else
        QtToolkit::ScheduleRelease();
}

void ScreenToolkit::PauseBegins(Double seconds)
{
    QtToolkit::PauseBegins(seconds);
    pauses_.push_back({seconds, false});
    clock_.HoldTimer();
    line_(lines::Pause(seconds));
}

void ScreenToolkit::PauseEnds()
{
    if (pauses_.empty())
        return;
    pauses_.pop_back();
    QtToolkit::PauseEnds();
    clock_.ReleaseTimer();
}

Reply ScreenToolkit::AskUser(MessageKind kind, const Text& text, const Text& title)
{
    const Pump::Turn turn(pump_, [this, kind, isAnswered = false]() mutable {
        QMessageBox* box = hand::Hand::OpenBox();
        if (!box)
            return;
        if (std::exchange(isAnswered, true))
            return static_cast<void>(hand_.Key(Qt::Key_Escape));
        if (const auto reason = hand_.Answer(*box, player_->Answer(kind)); !reason.empty())
            line_("refused: " + reason);
    });
    const Reply reply = QtToolkit::AskUser(kind, text, title);
    line_(lines::Box(kind, text, title, reply));
    return reply;
}

void ScreenToolkit::ShowKeys(const toolkit::FormModel& form, const std::vector<toolkit::KeyHelp>& keys)
{
    for (const std::string& line : lines::Help(form, keys))
        line_(line);
    const Pump::Turn turn(pump_, [this] { hand_.Key(Qt::Key_Escape); });
    QtToolkit::ShowKeys(form, keys);
}

void ScreenToolkit::RunPreview(const toolkit::ReportModel& report)
{
    const reports::Document pages =
        reports::LayOut({report.Current(), report.Data(), clock_.Now()}, reportMetrics_);
    line_(lines::Report(report, pages));
    player_->PreviewOpens(report, pages);
    const Pump::Turn turn(pump_, [this] {
        QWidget* preview = QApplication::activeModalWidget();
        if (preview && !player_->StepInPreview())
            hand_.CloseWindow(*preview);
    });
    ShowPreview(report, pages);
}

void ScreenToolkit::UnhandledFailure(const Failure& failure)
{
    hasFailed_ = true;
    line_(lines::Unhandled(failure));
}

void ScreenToolkit::FormShows(const toolkit::FormModel& form, ShowMode mode)
{
    line_(lines::Shows(form, mode));
}

void ScreenToolkit::FormHides(const toolkit::FormModel& form) { line_(lines::Hides(form)); }

void ScreenToolkit::FormUnloads(const toolkit::FormModel& form) { line_(lines::Unloads(form)); }

void ScreenToolkit::FormRepaints(const toolkit::FormModel& form) { line_(lines::Repaints(form)); }

void ScreenToolkit::CodeFocuses(const toolkit::WidgetCore& widget) { line_(lines::Focuses(widget)); }

void ScreenToolkit::FormPopsUp(const toolkit::FormModel&, const toolkit::MenuModel& parent, Twips x, Twips y)
{
    line_(lines::PopsUp(parent, x, y));
}

void ScreenToolkit::KeysAreSent(const Text& keys) { line_(lines::Keys(keys)); }

} // namespace kova::scenario
