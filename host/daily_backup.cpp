#include "host/daily_backup.hpp"

#include "agenda/contracts/failure.hpp"
#include "toolkits/qt/system_clock.hpp"

#include <chrono>

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
    if (store_)
        return;
    try {
        store_ = components_.CreateObject("KOVA_N_Dados.clsBanco");
        store_->Call("IniciarCopiaDoDia", {Today()});
        whileRunning_.start();
    } catch (const Failure& failure) {
        store_.reset();
        tell_(failure.Description());
    }
}

void DailyBackup::LookWhetherDone()
{
    if (!store_->Get("CopiaDoDiaTerminou").ToBoolean())
        return;
    whileRunning_.stop();
    tell_(store_->Get("FalhaDaCopiaDoDia").ToText());
    store_.reset();
}

} // namespace kova::host
