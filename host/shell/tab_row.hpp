#pragma once

#include <QTabBar>
#include <QWidget>

class QLabel;
class QMenu;
class QToolButton;

namespace kova::host {

/// The tabs of the window: flat words, the one on show underlined. They never take the keyboard by a press.
class Tabs : public QTabBar {
public:
    explicit Tabs(QWidget* parent);

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintTab(QPainter& painter, int index) const;
};

/// The narrow row at the upper edge of the window: its tabs, that a demonstration is one, who works with the
/// window, and the menu of the application, which F10 opens too.
class TabRow : public QWidget {
public:
    explicit TabRow(QWidget* parent);

    Tabs& GetTabs() { return *tabs_; }
    /// "" where nothing is to be said of the shop.
    void TellShop(const QString& text);
    /// "" where nobody is known.
    void TellUser(const QString& name);
    QMenu& Menu() { return *menu_; }
    void OpenMenu();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Tabs* tabs_;
    QLabel* shop_;
    QLabel* user_;
    QToolButton* button_;
    QMenu* menu_;
};

} // namespace kova::host
