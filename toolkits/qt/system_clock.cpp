#include "toolkits/qt/system_clock.hpp"

#include <QDateTime>

namespace kova::qt {

DateTime SystemClock::Now() const
{
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    return {{date.year(), date.month(), date.day()}, {time.hour(), time.minute(), time.second()}};
}

Double SystemClock::Timer() const
{
    constexpr double millisecondsPerSecond = 1000.0;
    return QTime::currentTime().msecsSinceStartOfDay() / millisecondsPerSecond;
}

} // namespace kova::qt
