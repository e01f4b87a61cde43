#include "host/session/news_listener.hpp"

#include "family/data/sources/data_source.hpp"

#include <QSemaphore>

#include <algorithm>
#include <exception>
#include <iterator>
#include <utility>

namespace kova::host {

namespace {

using namespace std::chrono_literals;

/// So that what others write is known within a second, the look included.
constexpr std::chrono::milliseconds LookAtFile = 800ms;
/// Between two looks at a server that goes on telling.
constexpr std::chrono::milliseconds Breath = 250ms;
/// Between tries to reach a server that is lost: at first, and at last.
constexpr std::chrono::milliseconds FirstPause = 500ms, LongestPause = 30s;

} // namespace

NewsListener::NewsListener(std::string source, std::function<void()> tell)
    : source_(std::move(source)), tell_(std::move(tell)), pause_(FirstPause)
{
    moveToThread(&thread_);
    thread_.setObjectName(QStringLiteral("novidades"));
    connect(&thread_, &QThread::started, this, [this] { Start(); });
    // Timers and the connection end in the thread that they belong to.
    connect(&thread_, &QThread::finished, this, [this] {
        next_.reset();
        notifier_.reset();
        news_.reset();
        database_.reset();
    });
    thread_.start();
}

NewsListener::~NewsListener()
{
    thread_.quit();
    thread_.wait();
}

std::vector<family::NewsOfRow> NewsListener::Take()
{
    const std::lock_guard lock(mutex_);
    return std::exchange(gathered_, {});
}

void NewsListener::LookNow(std::chrono::milliseconds patience)
{
    const auto done = std::make_shared<QSemaphore>();
    const auto look = [this, done] {
        if (!isLost_)
            Look();
        done->release();
    };
    QMetaObject::invokeMethod(this, look, Qt::QueuedConnection);
    done->tryAcquire(1, static_cast<int>(patience.count()));
}

void NewsListener::Start()
{
    next_ = std::make_unique<QTimer>();
    next_->setSingleShot(true);
    connect(next_.get(), &QTimer::timeout, this, [this] { Look(); });
    Look();
}

void NewsListener::LookSoon()
{
    notifier_->setEnabled(false);
    const auto since = std::chrono::milliseconds(sinceLook_.elapsed());
    if (since >= Breath)
        Look();
    else
        next_->start(Breath - since);
}

void NewsListener::Look()
{
    next_->stop();
    sinceLook_.start();
    try {
        if (!news_) {
            database_ = family::OpenDatabase(source_);
            news_ = std::make_unique<family::News>(*database_);
        }
        Gather(news_->Look());
        isLost_ = false;
        pause_ = FirstPause;
        Attach();
    } catch (const std::exception&) {
        Lose();
    }
}

void NewsListener::Gather(std::vector<family::NewsOfRow> rows)
{
    if (rows.empty())
        return;
    {
        const std::lock_guard lock(mutex_);
        std::ranges::move(rows, std::back_inserter(gathered_));
    }
    tell_();
}

void NewsListener::Attach()
{
    const std::intptr_t socket = news_->Socket();
    if (socket == family::News::NoSocket) {
        next_->start(LookAtFile);
        return;
    }
    if (!notifier_ || notifier_->socket() != socket) {
        notifier_ = std::make_unique<QSocketNotifier>(socket, QSocketNotifier::Read);
        connect(notifier_.get(), &QSocketNotifier::activated, this, [this] { LookSoon(); });
    }
    notifier_->setEnabled(true);
}

// What is not known now is told after the first look that succeeds. Whoever cannot open the shop at all says
// so elsewhere.
void NewsListener::Lose()
{
    isLost_ = true;
    notifier_.reset();
    next_->start(pause_);
    pause_ = std::min(2 * pause_, LongestPause);
}

} // namespace kova::host
