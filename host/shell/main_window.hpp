#pragma once

#include "host/options.hpp"

#include <QWidget>

#include <functional>
#include <vector>

class QMenu;
class QStackedWidget;

namespace kova::host {

class NoticeBar;
class TabRow;

/// The application's window: tabs, the first of which is the agenda, a container that the day's list fills,
/// with a hint in its place where no list could be opened. Alt with a number turns to the tab of that number.
/// Closing it ends the application's event loops, whatever else is on the screen.
class MainWindow : public QWidget {
public:
    /// What the title tells: whose data is open, whether it is a demonstration, and who works with it.
    struct Heading {
        QString shop;
        bool isDemonstration = false;
        QString user;
    };

    explicit MainWindow(const Heading& heading);

    QWidget& Container() { return *container_; }

    /// Makes what a tab shows, when it is turned to for the first time.
    using MakePage = std::function<QWidget*(QWidget& parent)>;
    /// Answers its place in the row.
    int AddTab(const QString& name, MakePage make);
    /// As a press of that tab does.
    void ShowTab(int tab);
    /// The application's menu, at the right end of the tabs.
    QMenu& Menu();
    /// Somebody else works with it from now on: in the title, and at the right end of the tabs.
    void TellUser(const QString& name);
    /// The user's name is a button from then on.
    void OfferChange(std::function<void()> change);
    /// Asked before the window closes; false keeps it open.
    std::function<bool()> mayClose = [] { return true; };

    /// Shown in the container, until something else fills it.
    void ShowHint(const QString& text);
    /// Shown in a line below the container until the user closes it; one subject has one line, which "" takes
    /// away. It never takes the keyboard.
    void ShowNotice(const QString& subject, const QString& text);
    /// Shows the window at that size; without one filling the screen, and then returns once the desktop has
    /// given it its place, so that what is laid out in it finds the final size.
    void Open(std::optional<WindowSize> size);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void AddShortcuts();
    void TurnTo(int tab);
    void WaitForPlace();
    /// However small the screen is or however large it draws: no edge of the window has to lie beyond it.
    void FitToScreen();

    Heading heading_;
    TabRow* row_;
    QStackedWidget* pages_;
    QWidget* container_;
    NoticeBar* notice_;
    /// By tab; those that were turned to are made and leave nothing here.
    std::vector<MakePage> unmade_;
};

} // namespace kova::host
