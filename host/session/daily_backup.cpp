#include "host/session/daily_backup.hpp"

#include "family/data/engine/failure_words.hpp"
#include "toolkits/qt/system_clock.hpp"

#include <chrono>
#include <exception>

namespace kova::host {

namespace {

using namespace std::chrono_literals;

/// The computer's day, also where the agenda is shown as of another one: the copies are of real days.
std::string Today() { return FormatDate(qt::SystemClock().Now().date); }

} // namespace

DailyBackup::DailyBackup(ComponentService& components, Tell tell)
    : components_(components), tell_(std::move(tell))
{
    everyHour_.setInterval(1h);
    whileRunning_.setInterval(200ms);
    QObject::connect(&everyHour_, &QTimer::timeout, [this] { Begin(); });
    QObject::connect(&whileRunning_, &QTimer::timeout, [this] { LookWhetherDone(); });
    everyHour_.start();
}

void DailyBackup::Begin()
{
    if (database_)
        return;
    Telling([this] {
        database_ = components_.CreateObject("KOVA_N_Dados.clsBanco");
        database_->Call("IniciarCopiaDoDia", {Today()});
        whileRunning_.start();
    });
}

void DailyBackup::LookWhetherDone()
{
    Telling([this] {
        if (!database_->Get("CopiaDoDiaTerminou").ToBoolean())
            return;
        const std::string reason = database_->Get("FalhaDaCopiaDoDia").ToText();
        End();
        tell_(reason);
    });
}

void DailyBackup::End()
{
    whileRunning_.stop();
    database_.reset();
}

// A copy that is not made is no reason to end the program: nothing gets past the timers.
template <class Step> void DailyBackup::Telling(Step step)
{
    try {
        step();
    } catch (const std::exception& failure) {
        End();
        tell_(family::WordsFor(failure));
    }
}

} // namespace kova::host
