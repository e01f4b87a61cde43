#include "registers/background_work.hpp"

#include "agenda/contracts/failure.hpp"

#include <QMetaObject>

#include <exception>
#include <utility>

namespace kova::registers {

BackgroundWork::~BackgroundWork()
{
    Stop();
    if (thread_.joinable())
        thread_.join();
}

void BackgroundWork::Begin(const Act& act, Tell tell)
{
    tell_ = std::move(tell);
    stop_ = std::stop_source();
    thread_ = std::thread([this, act, stop = stop_.get_token()] { Run(act, stop); });
}

void BackgroundWork::Run(const Act& act, const std::stop_token& stop)
{
    family::LongWork work;
    work.stop = stop;
    work.progress = [this, told = -1](long long done, long long total) mutable {
        constexpr long long All = 100;
        const int hundredths = static_cast<int>(total <= 0 ? All : done * All / total);
        if (std::exchange(told, hundredths) != hundredths)
            QMetaObject::invokeMethod(
                this, [this, hundredths] { tell_.progress(hundredths); }, Qt::QueuedConnection);
    };
    std::string failure;
    try {
        act(work);
    } catch (const Failure& cause) {
        failure = cause.Description();
    } catch (const std::exception& cause) {
        failure = cause.what();
    }
    QMetaObject::invokeMethod(
        this, [this, failure] { End(failure); }, Qt::QueuedConnection);
}

void BackgroundWork::End(const std::string& failure)
{
    thread_.join();
    std::exchange(tell_, {}).end(failure);
}

} // namespace kova::registers
