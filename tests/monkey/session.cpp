#include "tests/monkey/session.hpp"

#include "host/session/session.hpp"
#include "tests/monkey/chooser.hpp"
#include "tests/monkey/failure_ear.hpp"
#include "tests/monkey/finding.hpp"
#include "tests/monkey/player.hpp"
#include "tests/monkey/screen.hpp"
#include "tests/monkey/users.hpp"
#include "tests/support/platform_remarks.hpp"
#include "toolkits/qt/look/apply_look.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QApplication>

#include <algorithm>
#include <array>
#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <fstream>
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
    std::filesystem::current_path(folder);
}

/// Screens that shops have, and one that is too small for everything.
Act ScreenOfSeed(std::uint64_t seed)
{
    struct Kind {
        int width;
        int height;
        int percent;
        const char* look;
    };
    static constexpr std::array kinds{Kind{1366, 768, 100, "light"}, Kind{1920, 1080, 100, "dark"},
                                      Kind{1366, 768, 125, "light"}, Kind{1024, 768, 100, "light"},
                                      Kind{1920, 1080, 175, "dark"}, Kind{800, 600, 100, "light"}};
    const Kind& kind = kinds[seed % kinds.size()];
    return {.verb = Verb::Screen, .numbers = {kind.width, kind.height, kind.percent}, .text = kind.look};
}

/// One shop in three has users.
bool HasUsers(const SessionPlan& plan)
{
    constexpr std::uint64_t Kinds = 3, WithUsers = 2;
    return plan.replay ? std::ranges::find(*plan.replay, Verb::Users, &Act::verb) != plan.replay->end()
                       : plan.seed % Kinds == WithUsers;
}

Act ScreenOf(const SessionPlan& plan)
{
    const std::vector<Act> acts = plan.replay.value_or(std::vector{ScreenOfSeed(plan.seed)});
    const auto found = std::ranges::find(acts, Verb::Screen, &Act::verb);
    return found == acts.end() ? ScreenOfSeed(0) : *found;
}

/// Before the application begins. A platform that the environment names has a screen of its own.
void SitDownAt(const Act& screen)
{
    std::ofstream("telas.json") << R"({"screens": [{"name": "tela", "x": 0, "y": 0, "width": )"
                                << screen.numbers[0] << R"(, "height": )" << screen.numbers[1] << "}]}";
    setenv("QT_QPA_PLATFORM", "offscreen:configfile=telas.json", 0);
    setenv("QT_SCALE_FACTOR", std::to_string(screen.numbers[2] / 100.0).c_str(), 0);
}

host::Options OptionsFor(const std::string& database)
{
    host::Options options;
    options.database = database;
    options.user = "Maria";
    options.date = Date{2026, 11, 20};
    options.time = TimeOfDay{9, 0, 0};
    options.pace = Pace;
    return options;
}

int Run(const host::Options& options)
{
    try {
        return host::RunSession(options, host::Outlet::Window).status;
    } catch (const std::exception& failure) {
        EndWithFinding("the session throws", failure.what());
    }
}

} // namespace

int RunSession(const SessionPlan& plan)
{
    LiveIn(plan.folder);
    const Act screen = ScreenOf(plan);
    SitDownAt(screen);
    const std::string database = (plan.folder / DatabaseName).string();
    std::optional<Users> users;
    std::deque<Act> first{screen};
    if (HasUsers(plan)) {
        users.emplace(database);
        first.push_back({.verb = Verb::Users});
    }
    std::unique_ptr<Source> source;
    if (plan.replay)
        source = std::make_unique<Replay>(*plan.replay);
    else
        source = std::make_unique<Chooser>(plan.seed, plan.acts, Words(NamesIn(database)), first);
    int count = 1;
    char name[] = "kovaris";
    char* words[] = {name, nullptr};
    QApplication application(count, words);
    QApplication::setApplicationName(QStringLiteral("kovaris"));
    qInstallMessageHandler(&TellWarning);
    qt::ApplyLook(application, screen.text == "dark" ? qt::Look::Dark : qt::Look::Light);
    constexpr family::Key CodeOfNobody = 8;
    OtherDesk otherDesk(database, users ? users->CodeOfColleague() : CodeOfNobody);
    Player player(*source, otherDesk, users ? &*users : nullptr, (plan.folder / LogName).string());
    const Watchdog watchdog(player);
    const FailureEar ear;
    return Run(OptionsFor(database));
}

} // namespace kova::monkey
