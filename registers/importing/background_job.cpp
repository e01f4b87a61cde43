#include "registers/importing/background_job.hpp"

#include "family/data/engine/database_failure.hpp"
#include "family/data/engine/failure_words.hpp"

#include <QMetaObject>

#include <exception>
#include <utility>

namespace kova::registers {

BackgroundJob::~BackgroundJob()
{
    Stop();
    if (thread_.joinable())
        thread_.join();
}

void BackgroundJob::Begin(Work work, Tell tell)
{
    tell_ = std::move(tell);
    stop_ = std::stop_source();
    thread_ = std::thread([this, work = std::move(work), stop = stop_.get_token()] {
        std::string failure;
        try {
            work(stop);
        } catch (const family::DatabaseFailure& cause) {
            failure = stop.stop_requested() ? cause.Cause() : cause.Description();
        } catch (const std::exception& cause) {
            failure = family::WordsFor(cause);
        }
        Post([this, failure] { End(failure); });
    });
}

void BackgroundJob::Post(std::function<void()> act)
{
    QMetaObject::invokeMethod(this, std::move(act), Qt::QueuedConnection);
}

void BackgroundJob::End(const std::string& failure)
{
    thread_.join();
    std::exchange(tell_, nullptr)(failure);
}

} // namespace kova::registers
