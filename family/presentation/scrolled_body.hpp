#pragma once

#include <QScrollArea>

class QDialog;

namespace kova::family {

/// What a window shows above its buttons. It scrolls where the screen has less room than it wants.
class ScrolledBody : public QScrollArea {
public:
    /// Takes the content over.
    explicit ScrolledBody(QLayout* content, QWidget* parent = nullptr);

    /// All of the content.
    QSize sizeHint() const override;
};

/// The largest inner size of a window on the screen of `near`, beside the frame that a desktop gives it.
QSize RoomOnScreen(const QWidget& near);

/// Makes a window as large as its content wants to be, and no larger than its screen has room.
void FitToScreen(QDialog& window, const ScrolledBody& body);

} // namespace kova::family
