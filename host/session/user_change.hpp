#pragma once

#include <QObject>
#include <QPointer>

#include <functional>
#include <vector>

namespace kova::host {

/// Tells the areas of the window that somebody else is at the desk, or that whoever is has other rights. The
/// session's user is the new one already when they are told.
class UserChange {
public:
    /// Runs `act` after each change, as long as `area` is there.
    void Follow(QObject& area, std::function<void()> act) { followers_.push_back({&area, std::move(act)}); }

    void Tell()
    {
        // One that is told may have others follow.
        const std::vector<Follower> followers = followers_;
        for (const Follower& follower : followers) {
            if (follower.area)
                follower.act();
        }
    }

private:
    struct Follower {
        QPointer<QObject> area;
        std::function<void()> act;
    };

    std::vector<Follower> followers_;
};

} // namespace kova::host
