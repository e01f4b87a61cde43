#pragma once

#include "family/data/audit/news.hpp"

#include <QElapsedTimer>
#include <QSocketNotifier>
#include <QThread>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace kova::host {

/// Gathers what is written into a shop's data, in a thread of its own over a connection of its own. A server
/// says by itself that there is something, and is asked no more often than a few times a second however much
/// there is; a file's counter is looked at a bit more than once a second. A server that is lost is tried
/// again, less often each time. What was written before the first look is not told.
class NewsListener : public QObject {
public:
    /// `tell` is called in the listener's thread whenever there is something to take.
    NewsListener(std::string source, std::function<void()> tell);
    /// Waits for a look that is under way.
    ~NewsListener() override;

    /// From any thread. Empties what was gathered.
    std::vector<family::NewsOfRow> Take();
    /// Looks at once, and waits for it that long at most; not at all for a server that is lost.
    void LookNow(std::chrono::milliseconds patience);

private:
    // All of them in the listener's thread.
    void Start();
    void LookSoon();
    void Look();
    void Gather(std::vector<family::NewsOfRow> rows);
    /// The socket is another one after a connection was lost.
    void Attach();
    void Lose();

    const std::string source_;
    const std::function<void()> tell_;
    QThread thread_;
    std::mutex mutex_;
    std::vector<family::NewsOfRow> gathered_;

    // Of the listener's thread.
    std::shared_ptr<family::Database> database_;
    std::unique_ptr<family::News> news_;
    std::unique_ptr<QSocketNotifier> notifier_;
    /// The next look, or the next try where the server is lost.
    std::unique_ptr<QTimer> next_;
    QElapsedTimer sinceLook_;
    std::chrono::milliseconds pause_;
    bool isLost_ = false;
};

} // namespace kova::host
