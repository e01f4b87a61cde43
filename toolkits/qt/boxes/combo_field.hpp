#pragma once

#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <functional>

class QListWidget;

namespace kova::toolkit {
enum class ComboKey;
}

namespace kova::qt {

/// A closed choice: the text on show, a chevron and a list that drops down. It decides nothing: it shows the
/// list that it is told to show, and tells what the user does, by mouse, keys and letters.
class ComboField : public QWidget {
public:
    explicit ComboField(QWidget* parent);
    ~ComboField() override;

    void SetShownText(const QString& text);
    QString ShownText() const { return text_; }
    /// Opens the list, where it is closed, and marks a row; -1 is none.
    void ShowList(const QStringList& rows, int marked);
    void CloseList();
    bool IsListOpen() const;
    /// The open list; null where it is closed.
    QListWidget* List() const;

    /// The user pressed the closed field.
    std::function<void()> pressed;
    /// The user took a row of the list, points at one, or left it.
    std::function<void(int row)> chosen;
    std::function<void(int row)> pointed;
    std::function<void()> left;
    std::function<void(toolkit::ComboKey key)> keyPressed;
    std::function<void(const QString& letters)> typed;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; }

private:
    QRectF TextArea() const;
    void MakeList(const QStringList& texts);
    void PlaceList(int count);
    void TakeListRow(int row);
    bool TakesKey(const QKeyEvent& event);

    QString text_;
    QPointer<QWidget> popup_;
    QPointer<QListWidget> list_;
};

} // namespace kova::qt
