#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>

#include <memory>
#include <vector>

class QInputMethodEvent;
class QKeyEvent;
class QMouseEvent;
class QShortcutEvent;
class QWidget;

namespace kova::toolkit {
class ToolkitModel;
}

namespace kova::qt {

class FormWidget;

/// Stands before all forms of the process: keeps input away from forms that take none, hands the keys of the
/// form as a whole (Tab, Enter, Escape) to its model, keeps the keys of a pause for later, and follows the
/// mouse.
class InputGate : public QObject {
public:
    explicit InputGate(const toolkit::ToolkitModel& toolkit);
    ~InputGate() override;

    bool eventFilter(QObject* watched, QEvent* event) override;
    /// A form waits for input again: keys that were kept are delivered where it is theirs.
    void InputAwaited();

private:
    /// The last press of the left button, in whichever window.
    struct Press {
        QPointer<QWidget> window;
        QPoint place;
        unsigned long milliseconds = 0;
        bool isAny = false;
    };

    bool TakesKey(FormWidget& form, QWidget& target, const QKeyEvent& event);
    /// Whether a press goes on with a double press that began in a window that is gone meanwhile.
    bool EndsAPressElsewhere(const QWidget& target, const QMouseEvent& event);
    void FollowMouse(QWidget& target, const QEvent& event);
    /// A key for whatever has the focus then, or a mnemonic of that widget.
    struct KeptKey {
        std::unique_ptr<QEvent> event;
        QPointer<QWidget> widget;
    };

    void KeepKey(const QKeyEvent& event);
    void KeepComposed(const QInputMethodEvent& event);
    void KeepMnemonic(const QShortcutEvent& event, QWidget& widget);
    void Keep(KeptKey key);
    void DeliverKeptKeys();
    static void Deliver(const KeptKey& key, QWidget& target);

    const toolkit::ToolkitModel& toolkit_;
    Press press_;
    /// The follower that the mouse was over last.
    QPointer<QWidget> pointed_;
    std::vector<KeptKey> kept_;
    /// Of the toolkit, when the first of the kept keys came.
    unsigned interruptions_ = 0;
    bool delivering_ = false;
};

} // namespace kova::qt
