#pragma once

#include <QObject>

#include <chrono>
#include <functional>

class QTimer;

namespace kova::host {

/// Calls once nobody has touched the mouse or a key of the application for as long as that. It begins anew
/// with the next touch.
class IdleWatch : public QObject {
public:
    explicit IdleWatch(QObject* parent);

    /// 0 is never.
    void SetPatience(std::chrono::milliseconds patience);
    std::function<void()> onIdle = [] {};

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void Begin();

    QTimer* timer_;
    std::chrono::milliseconds patience_{0};
};

} // namespace kova::host
