#pragma once

#include <QObject>
#include <QRegion>

class QWidget;

namespace kova::bench {

/// Lets everything happen that waits, painting included.
void Settle();

/// Watches what is painted in a window for as long as it lives.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget& window);
    ~PaintWatch() override;

    /// What was painted since the last call, in the window's coordinates.
    QRegion Take();

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QWidget& window_;
    QRegion painted_;
};

/// Pixels of a region.
long long AreaOf(const QRegion& region);

} // namespace kova::bench
