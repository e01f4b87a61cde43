#pragma once

#include <QFrame>
#include <QString>

#include <utility>
#include <vector>

class QLabel;

namespace kova::host {

/// What the user should know and can attend to later, a line for each subject. It can be closed with the
/// mouse and never takes the keyboard.
class NoticeBar : public QFrame {
public:
    /// Hidden until it has something to show.
    explicit NoticeBar(QWidget* parent);

    /// In the place of what was told of that subject; "" takes that away.
    void Show(const QString& subject, const QString& text);

private:
    void Close();

    /// Subjects with their texts, in the order in which they came.
    std::vector<std::pair<QString, QString>> notices_;
    QLabel* text_;
};

} // namespace kova::host
