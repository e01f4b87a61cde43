#pragma once

#include "screens/tabs.hpp"

#include <QWidget>

class QLabel;
class QMenu;
class QToolButton;

namespace kova::host {

/// The narrow row at the upper edge of the window: its tabs, that a demonstration is one, who works with the
/// window, and the menu of the application, which F10 opens too.
class TabRow : public QWidget {
public:
    explicit TabRow(QWidget* parent);

    screens::Tabs& GetTabs() { return *tabs_; }
    /// "" where nothing is to be said of the shop.
    void TellShop(const QString& text);
    /// "" where nobody is known.
    void TellUser(const QString& name);
    QMenu& Menu() { return *menu_; }
    void OpenMenu();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    screens::Tabs* tabs_;
    QLabel* shop_;
    QLabel* user_;
    QToolButton* button_;
    QMenu* menu_;
};

} // namespace kova::host
