#pragma once

#include <QLineEdit>

#include <functional>

class QAbstractItemView;

namespace kova::screens {

/// A box to search a list with. The arrows walk through the list while the box keeps the keyboard.
class SearchBox : public QLineEdit {
public:
    /// `hint` is shown where nothing is typed.
    SearchBox(const QString& name, const QString& hint, QWidget* parent);

    /// The list stays as long as the box.
    void WalkThrough(QAbstractItemView& list) { list_ = &list; }

    /// Instead of what Enter does around the box.
    std::function<void()> onEnter;

private:
    void keyPressEvent(QKeyEvent* event) override;

    QAbstractItemView* list_ = nullptr;
};

} // namespace kova::screens
