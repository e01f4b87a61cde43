#pragma once

#include "family/users/standing.hpp"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace kova::registers {
class BackgroundJob;
}

namespace kova::host {

/// Looks whether whoever is at the desk still may do what he could: other desks change users, roles and the
/// shop's settings. It looks when it is asked to and each minute, in a thread of its own over a connection of
/// its own: the window never waits for it. What cannot be read now stays as it was.
class StandingWatch : public QObject {
public:
    explicit StandingWatch(std::string source, QObject* parent);

    /// Called with each answer that is another than the last one, and with the first one of a user.
    std::function<void(const family::Standing& now, const std::optional<family::Standing>& before)>
        onChanged = [](const auto&, const auto&) {};

    /// From now on it is that user.
    void Follow(family::Key user);
    /// Nothing happens before there is somebody to follow.
    void Look();

private:
    void Hear(family::Key user, const family::Standing& now);

    std::string source_;
    registers::BackgroundJob* job_;
    /// Used in the job's thread alone, and kept open between looks.
    std::shared_ptr<std::shared_ptr<family::Database>> database_;
    std::optional<family::Key> user_;
    std::optional<family::Standing> last_;
    /// Asked for while a look was under way.
    bool looksAgain_ = false;
};

} // namespace kova::host
