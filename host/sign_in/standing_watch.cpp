#include "host/sign_in/standing_watch.hpp"

#include "family/data/sources/data_source.hpp"
#include "registers/importing/background_job.hpp"

#include <QTimer>

#include <chrono>
#include <utility>

namespace kova::host {

using family::Standing;

StandingWatch::StandingWatch(std::string source, QObject* parent)
    : QObject(parent),
      source_(std::move(source)),
      job_(new registers::BackgroundJob(this)),
      database_(std::make_shared<std::shared_ptr<family::Database>>())
{
    using namespace std::chrono_literals;
    auto* everyMinute = new QTimer(this);
    everyMinute->setInterval(1min);
    connect(everyMinute, &QTimer::timeout, this, [this] { Look(); });
    everyMinute->start();
}

void StandingWatch::Follow(family::Key user)
{
    user_ = user;
    last_.reset();
    Look();
}

void StandingWatch::Look()
{
    if (!user_)
        return;
    looksAgain_ = job_->IsUnderWay();
    if (looksAgain_)
        return;
    auto found = std::make_shared<Standing>();
    const auto look = [source = source_, database = database_, user = *user_, found](const std::stop_token&) {
        // One that fails is made anew at the next look.
        auto open = std::exchange(*database, nullptr);
        if (!open)
            open = family::OpenDatabase(source);
        *found = family::StandingOf(*open, user);
        *database = std::move(open);
    };
    job_->Begin(look, [this, found, user = *user_](const std::string& failure) {
        if (failure.empty())
            Hear(user, *found);
        if (std::exchange(looksAgain_, false))
            Look();
    });
}

// Somebody else may have come meanwhile.
void StandingWatch::Hear(family::Key user, const Standing& now)
{
    if (user != user_ || now == last_)
        return;
    const std::optional<Standing> before = std::exchange(last_, now);
    onChanged(now, before);
}

} // namespace kova::host
