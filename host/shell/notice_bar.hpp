#pragma once

#include <QFrame>

class QLabel;

namespace kova::host {

/// A line with something the user should know and can attend to later. It can be closed with the mouse and
/// never takes the keyboard.
class NoticeBar : public QFrame {
public:
    /// Hidden until it has something to show.
    explicit NoticeBar(QWidget* parent);

    /// "" hides it.
    void Show(const QString& text);

private:
    QLabel* text_;
};

} // namespace kova::host
