#pragma once

#include "host/options.hpp"

#include <QWidget>

#include <functional>
#include <vector>

class QMenu;
class QStackedWidget;
class QTimer;

namespace kova::host {

class NewsBar;
class NoticeBar;
class TabRow;

/// The application's window: tabs, the first of which is the agenda, a container that the day's list fills,
/// with a hint in its place where no list could be opened. Alt with a number turns to the tab of that number,
/// which it keeps while others are not there.
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
    /// As a press of that tab does. One that is not there says why instead.
    void ShowTab(int tab);
    /// Takes a tab away, with its page, where there is a reason, as a sentence, and brings it back without
    /// one. It keeps its place and its number; its page is made anew.
    void OfferTab(int tab, const QString& why);
    /// The application's menu, at the right end of the tabs.
    QMenu& Menu();
    /// Somebody else works with it from now on: in the title, and at the right end of the tabs.
    void TellUser(const QString& name);
    /// The user's name is a button from then on.
    void OfferChange(std::function<void()> change);
    /// Called when another tab was turned to.
    std::function<void()> onTurned = [] {};
    /// Asked before the window closes; false keeps it open.
    std::function<bool()> mayClose = [] { return true; };

    /// Above the agenda, where that is the tab on show.
    NewsBar& News();
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
    /// The page of a tab that is not there any more goes as soon as it has no dialog open.
    void Drop(int tab);
    void DeleteDropped();
    void WaitForPlace();
    /// However small the screen is or however large it draws: no edge of the window has to lie beyond it.
    void FitToScreen();

    Heading heading_;
    TabRow* row_;
    QStackedWidget* pages_;
    QWidget* container_;
    NoticeBar* notice_;
    /// By tab: how its page is made, whether it is, and why the tab is not there, where it is not.
    struct Tab {
        MakePage make;
        bool isMade = false;
        QString why{};
    };
    std::vector<Tab> all_;
    std::vector<QWidget*> dropped_;
    QTimer* deleting_;
};

} // namespace kova::host
