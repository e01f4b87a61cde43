#include "screens/search_box.hpp"

#include "screens/field_frame.hpp"

#include <QAbstractItemView>
#include <QKeyEvent>

namespace kova::screens {

namespace {

constexpr int LongestText = 100;

/// Marks the row that lies so many rows below the marked one, if there is one. Where none is marked the first
/// is the next.
void Step(QAbstractItemView& list, int rows)
{
    const int next = list.currentIndex().row() + rows;
    if (next >= 0 && next < list.model()->rowCount())
        list.setCurrentIndex(list.model()->index(next, 0));
}

} // namespace

SearchBox::SearchBox(const QString& name, const QString& hint, QWidget* parent) : QLineEdit(parent)
{
    setObjectName(name);
    setPlaceholderText(hint);
    setClearButtonEnabled(true);
    setMinimumHeight(BoxHeight);
    setTextMargins(RoomBesideText, 0, RoomBesideText, 0);
    setMaxLength(LongestText);
}

void SearchBox::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (list_ != nullptr && (key == Qt::Key_Down || key == Qt::Key_Up))
        Step(*list_, key == Qt::Key_Down ? 1 : -1);
    else if (onEnter && (key == Qt::Key_Return || key == Qt::Key_Enter))
        onEnter();
    else
        QLineEdit::keyPressEvent(event);
}

} // namespace kova::screens
