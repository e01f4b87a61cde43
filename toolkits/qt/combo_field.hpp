#pragma once

#include <QListWidget>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <functional>

namespace kova::qt {

/// A closed choice: the text on show, a chevron and a list that drops down. Full use by keys: Alt+Down,
/// F4 or Space open the list, arrows, Home, End and first letters choose. It decides nothing: it asks
/// for rows and tells what the user does.
class ComboField : public QWidget {
public:
    explicit ComboField(QWidget* parent);
    ~ComboField() override;

    void SetShownText(const QString& text);
    QString ShownText() const { return text_; }
    void CloseList();
    bool IsListOpen() const { return list_ != nullptr; }
    /// The open list; null where it is closed.
    QListWidget* List() const;

    /// The user is about to open the list: the rows may still change inside. False keeps it shut.
    std::function<bool()> aboutToOpen;
    std::function<QStringList()> rows;
    std::function<int()> currentRow;
    /// The user took a row, by mouse or key.
    std::function<void(int row)> chosen;

protected:
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
    void OpenList();
    void MakeList(const QStringList& texts);
    void PlaceList(int count);
    void TakeListRow(int row);
    void Step(int row);
    void FindByLetter(const QString& letter);
    bool OpensByKey(const QKeyEvent& event) const;

    QString text_;
    QPointer<QWidget> popup_;
    QPointer<QListWidget> list_;
};

} // namespace kova::qt
