#pragma once

#include "screens/tabs.hpp"

#include <QWidget>

#include <functional>

class QLabel;
class QMenu;
class QToolButton;

namespace kova::host {

class NewsBar;

/// The narrow row at the upper edge of the window: its tabs, that a demonstration is one, who works with the
/// window, as a button where another can take the place, and the menu of the application, which F10 opens
/// too.
class TabRow : public QWidget {
public:
    explicit TabRow(QWidget* parent);

    screens::Tabs& GetTabs() { return *tabs_; }
    /// "" where nothing is to be said of the shop.
    void TellShop(const QString& text);
    /// "" where nobody is known.
    void TellUser(const QString& name);
    /// The user's name is a button from then on.
    void OfferChange(std::function<void()> change);
    QMenu& Menu() { return *menu_; }
    NewsBar& News() { return *news_; }
    void OpenMenu();

protected:
    void paintEvent(QPaintEvent* event) override;
    /// A name that is no button is not pressed, and tells no more than its tip.
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    screens::Tabs* tabs_;
    void ShowUser();

    NewsBar* news_;
    QLabel* shop_;
    QToolButton *user_, *button_;
    QString name_;
    std::function<void()> change_;
    QMenu* menu_;
};

} // namespace kova::host
