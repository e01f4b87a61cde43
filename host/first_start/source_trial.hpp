#pragma once

#include <QObject>

#include <functional>
#include <optional>
#include <string>
#include <thread>

namespace kova::host {

/// Looks whether a shop can be opened, without keeping the window from being used meanwhile: a server may
/// take its time to answer. One trial at a time.
class SourceTrial : public QObject {
public:
    /// Why the shop cannot be opened, in Portuguese; nothing where it can.
    using Refusal = std::optional<std::string>;
    using Look = std::function<Refusal(const std::string& source)>;

    /// `look` runs in a thread of its own.
    SourceTrial(Look look, QObject* parent);
    /// Waits for a trial that is under way; what it finds is told to nobody.
    ~SourceTrial() override;

    /// `tell` is called in this thread, from the event loop. Without a trial that is under way only.
    void Begin(const std::string& source, std::function<void(const Refusal&)> tell);

private:
    void End(const Refusal& refusal);

    Look look_;
    std::function<void(const Refusal&)> tell_;
    std::thread thread_;
};

} // namespace kova::host
