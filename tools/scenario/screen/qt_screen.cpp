// A script on the real screen.

#include "tools/scenario/screen/qt_screen.hpp"

#include "tests/support/platform_remarks.hpp"
#include "tools/scenario/screen/container_window.hpp"
#include "tools/scenario/screen/screen_person.hpp"
#include "tools/scenario/screen/screen_toolkit.hpp"

#include <QApplication>

#include <cstdio>

namespace kova::scenario {

namespace {

/// How often Qt has complained.
int warnings = 0;

void Hear(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type == QtDebugMsg || type == QtInfoMsg || test::IsRemarkOfThePlatform(text)
        || text.contains(QLatin1String("XDG_RUNTIME_DIR")))
        return;
    ++warnings;
    std::fprintf(stderr, "Qt: %s\n", qPrintable(text));
}

void NeedApplication()
{
    if (QCoreApplication::instance())
        return;
    const bool hasDisplay =
        !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (!hasDisplay && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "agenda-scenario";
    static char* words[] = {name, nullptr};
    qInstallMessageHandler(&Hear);
    // It lives as long as the process: what the libraries keep of it goes after main.
    static auto* const application = new QApplication(count, words);
    application->setQuitOnLastWindowClosed(false);
}

class QtScreen final : public Screen {
public:
    QtScreen() : toolkit_(clock_, pump_), person_(toolkit_) { }

    toolkit::ToolkitModel& Toolkit() override { return toolkit_; }
    headless::FrozenClock& Clock() override { return clock_; }
    kova::scenario::Person& Person() override { return person_; }

    void SetPlayer(Player& player) override
    {
        player_ = &player;
        toolkit_.SetPlayer(player);
    }
    void OnLine(std::function<void(const std::string&)> listener) override
    {
        toolkit_.OnLine(std::move(listener));
    }
    void WidthInPixels(int pixels) override { toolkit_.WidthInPixels(pixels); }
    Long CreateContainer(Twips width, Twips height) override
    {
        container_ = std::make_unique<ContainerWindow>(toolkit::InnerSize{width, height});
        toolkit_.RegisterTopWindow(container_.get());
        return toolkit_.NumberOf(*container_);
    }
    void ResizeContainer(Twips width, Twips height) override { container_->Resize({width, height}); }
    void Play() override
    {
        pump_.Run([this] { return player_->Step(); });
    }
    void ReleaseForms() override
    {
        toolkit_.Release();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    bool HasFailed() const override { return toolkit_.HasFailed() || warnings > 0; }

private:
    headless::FrozenClock clock_;
    Pump pump_;
    std::unique_ptr<ContainerWindow> container_;
    ScreenToolkit toolkit_;
    ScreenPerson person_;
    Player* player_ = nullptr;
};

} // namespace

std::unique_ptr<Screen> MakeQtScreen()
{
    NeedApplication();
    return std::make_unique<QtScreen>();
}

} // namespace kova::scenario
