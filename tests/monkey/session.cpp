#include "tests/monkey/session.hpp"

#include "host/session.hpp"
#include "tests/monkey/failure_ear.hpp"
#include "tests/monkey/finding.hpp"
#include "tests/monkey/player.hpp"
#include "tests/monkey/screen.hpp"
#include "tests/support/platform_remarks.hpp"
#include "toolkits/qt/theme.hpp"

#include <QApplication>

#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <iostream>
#include <mutex>
#include <thread>

namespace kova::monkey {

namespace {

constexpr double Pace = 25;

void TellWarning(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type != QtDebugMsg && type != QtInfoMsg && !test::IsRemarkOfThePlatform(text))
        TellFinding("warning", text.toStdString());
}

/// Ends the process where the event loop has not turned for long.
class Watchdog {
public:
    explicit Watchdog(const Player& player) : thread_([this, &player] { Watch(player); }) { }
    ~Watchdog()
    {
        {
            const std::lock_guard lock(mutex_);
            ends_ = true;
        }
        end_.notify_all();
        thread_.join();
    }
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

private:
    void Watch(const Player& player)
    {
        constexpr std::chrono::seconds patience(60);
        std::unique_lock lock(mutex_);
        unsigned turns = 0;
        do {
            turns = player.Turns();
            end_.wait_for(lock, patience, [this] { return ends_; });
        } while (!ends_ && player.Turns() != turns);
        if (!ends_)
            EndWithFinding("hangs", "the event loop turns no more");
    }

    std::mutex mutex_;
    std::condition_variable end_;
    bool ends_ = false;
    std::thread thread_;
};

void LiveIn(const std::filesystem::path& folder)
{
    std::filesystem::create_directories(folder / "Documents");
    setenv("HOME", folder.c_str(), 1);
    setenv("XDG_DATA_HOME", (folder / "dados").c_str(), 1);
    setenv("XDG_CONFIG_HOME", (folder / "ajustes").c_str(), 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    std::filesystem::current_path(folder);
}

host::Options OptionsFor(const std::string& database)
{
    host::Options options;
    options.database = database;
    options.user = "Maria";
    options.date = Date{2026, 11, 20};
    options.time = TimeOfDay{9, 0, 0};
    options.pace = Pace;
    options.size = host::WindowSize{1366, 768};
    return options;
}

int Run(const host::Options& options)
{
    try {
        return host::RunSession(options, host::Outlet::Window);
    } catch (const std::exception& failure) {
        EndWithFinding("the session throws", failure.what());
    }
}

} // namespace

int RunSession(const SessionPlan& plan)
{
    LiveIn(plan.folder);
    const std::string database = (plan.folder / DatabaseName).string();
    std::unique_ptr<Source> source;
    if (plan.replay)
        source = std::make_unique<Replay>(*plan.replay);
    else
        source = std::make_unique<Chooser>(plan.seed, plan.acts, Words(NamesIn(database)));
    int count = 1;
    char name[] = "kovaris";
    char* words[] = {name, nullptr};
    QApplication application(count, words);
    QApplication::setApplicationName(QStringLiteral("kovaris"));
    qInstallMessageHandler(&TellWarning);
    qt::ApplyLook(application);
    OtherDesk otherDesk(database);
    Player player(*source, otherDesk, (plan.folder / LogName).string());
    const Watchdog watchdog(player);
    const FailureEar ear;
    return Run(OptionsFor(database));
}

} // namespace kova::monkey
